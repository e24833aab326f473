#!/usr/bin/perl
# States the limits of the handheld's screen once more, straight from the table of widths, and holds
# what `vellumo review` says of some projects against them:
# screen_limits.pl VELLUMO FONT-WIDTHS.CSV PROJECT... Dies of the first difference.
use strict;
use warnings;
use JSON::PP;

my ($vellumo, $csv, @projects) = @ARGV;
my ($standard, $bold) = (0, 1);
my %free = ('Text' => 2, 'Numeric' => 2, 'Yes/No' => 2, 'Date/Time' => 2, 'Currency' => 2,
    'Scanned Barcode' => 2, 'Pulldown List' => 3, 'Signature' => 3, 'Notes' => 1, 'Checkboxes' => 1);

my @width;
open my $table, '<', $csv or die "$csv: $!\n";
while (<$table>) { $width[$1][$2] = $3 if /^(\d+),(\d+),(\d+)$/ }
$width[$_][0x80] += 3 for $standard, $bold; # the euro sign as newer systems draw it

sub wide {
    my ($font, $text) = @_;
    my $sum = 0;
    $sum += $width[$font][ord] for split //, $text;
    return $sum;
}

# What the script makes of a text between its quotes.
my %letter = (a => 7, b => 8, t => 9, n => 10, v => 11, f => 12, r => 13, e => 27, z => 26);
sub stands_for {
    my ($escape) = @_;
    my $code = $escape =~ /^[0-7]/ ? oct($escape) & 255
        : $escape =~ s/^[xX]// ? hex($escape || 0)
        : $letter{$escape} // ($escape eq '_' ? 0 : ord $escape);
    return $code ? chr $code : '';
}
sub arrives {
    my ($text) = @_;
    $text =~ s/\\(?:400(.*)|([0-7]{1,3}|[xX]0*[0-9a-fA-F]{0,2}|.)|$)/defined $2 ? stands_for($2) : ''/gse;
    return $text;
}
sub wording { return arrives($_[0] =~ s/\\*"/\\"/gr) }

# How many lines a line becomes where 151 pixels are the most.
sub wrapped {
    my ($line) = @_;
    return 1 if wide($bold, $line) <= 151;
    my $fits = length $line;
    --$fits while wide($bold, substr $line, 0, $fits) > 151;
    my $blank = rindex $line, ' ', $fits;
    return 1 + wrapped($blank > 0 ? substr $line, $blank + 1 : substr $line, $fits);
}

# Lines "code question field numbers": the pixels that are too many, then the lines that are.
sub misfits {
    my ($xml) = @_;
    my @found;
    my $value = sub {
        my ($tag, $text) = @_;
        return $text =~ m{<$tag>(?:<!\[CDATA\[(.*?)\]\]>)?</$tag>}s ? $1 // '' : die "no $tag\n";
    };
    my $letters = sub { push @found, "not-on-handheld $_[0]" if $_[1] =~ /[\x8E\x9E]/ };
    my ($main) = $xml =~ m{<rcMain>(.*)</rcMain>}s;
    my ($childs) = $xml =~ m{<rcChilds>(.*)</rcChilds>}s;
    my %items;
    push @{$items{$value->('Id', $_)}}, $value->('Item', $_) for $childs =~ m{<record>(.*?)</record>}gs;

    $letters->('0 description', wording($value->('Description', $xml)));
    my $number = 0;
    for my $record ($main =~ m{<record>(.*?)</record>}gs) {
        ++$number;
        my $type = $value->('Type', $record);
        my $title = arrives($value->('Title', $record));
        my $over = wide($bold, $title) - 146;
        push @found, "title-too-wide $number title $over" if $over > 0;
        $letters->("$number title", $title);

        my $question = wording($value->('Question', $record));
        my @lines = split /\n/, $question, -1;
        @lines = ('') unless @lines;
        my @wide = grep { $_ > 0 } map { wide($bold, $_) - 140 } @lines;
        my $count = 0;
        $count += wrapped($_) for @lines;
        push @wide, "in $count" if $count > ($free{$type} // 1);
        push @found, "question-too-wide $number question text @wide" if @wide;
        $letters->("$number question text", $question);

        next unless $type eq 'Pulldown List' || $type eq 'Checkboxes';
        my ($code, $most) = $type eq 'Checkboxes' ? ('caption', 120) : ('item', 140);
        my %told; # of equal items the first
        for my $item (grep { !$told{$_}++ } @{$items{$value->('Id', $record)}}) {
            my @parts = map { arrives($_) } split /,/, $item, -1;
            my ($first) = grep { $_ > 0 } map { wide($standard, $_) - $most } @parts;
            push @found, "$code-too-wide $number item $first" if defined $first;
            $letters->("$number item", join '', @parts);
        }
    }
    return @found;
}

# The same of what `vellumo review` says.
sub said {
    my ($project) = @_;
    my @found;
    open my $review, '-|', $vellumo, 'review', '--json', $project or die "$vellumo: $!\n";
    while (<$review>) {
        my $notice = decode_json($_);
        next unless $notice->{code} =~ /-too-wide$|^not-on-handheld$/;
        $notice->{kind} eq 'warning' or die "it is a $notice->{kind}\n";
        my $place = ($notice->{question} // 0) . ' ' . $notice->{field};
        my ($reason) = $notice->{message} =~ /.*": (.*)/s;
        my @numbers = $reason =~ /(\d+) pixels? too wide/g;
        push @numbers, "in $1" if $reason =~ /in (\d+) lines it runs/;
        push @found, join ' ', $notice->{code}, $place, @numbers;
    }
    close $review;
    return @found;
}

for my $project (@projects) {
    open my $file, '<:raw', $project or die "$project: $!\n";
    my @expected = misfits(do { local $/; <$file> });
    my @said = said($project);
    for my $i (0 .. ($#expected > $#said ? $#expected : $#said)) {
        my ($expected, $said) = map { $_ // 'nothing' } $expected[$i], $said[$i];
        $expected eq $said or die "$project: '$said' is said, but it is '$expected'\n";
    }
    printf "%s: %d misfits\n", $project, scalar @said;
}
