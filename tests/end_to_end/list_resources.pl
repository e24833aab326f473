#!/usr/bin/perl
# Reads a database with a reader that shares no code with ours and holds what it finds against the
# project: list_resources.pl DATABASE PROJECT. Prints its resources; dies of the first difference.
use strict;
use warnings;
use Palm::PDB;
use Palm::Raw;

my ($database, $project) = @ARGV;
Palm::PDB::RegisterPRCHandlers('Palm::Raw', ['Wmpt', 'kelp']);
my $pdb = Palm::PDB->new;
$pdb->Load($database);

open my $file, '<:raw', $project or die "$project: $!\n";
my $xml = do { local $/; <$file> };
sub values_of { my ($tag, $text) = @_; $text =~ m{<$tag>(?:<!\[CDATA\[(.*?)\]\]>)?</$tag>}gs }
my ($form_name) = values_of('FormName', $xml);
my ($main) = $xml =~ m{<rcMain>(.*)</rcMain>}s;
my @titles = values_of('Title', $main);
my @questions = values_of('Question', $main);
my @columns = values_of('ColumnName', $main);
my ($childs) = $xml =~ m{<rcChilds>(.*)</rcChilds>}s;
my @items = values_of('Item', $childs);

sub same { my ($what, $is, $should) = @_; $is eq $should or die "$what is '$is', not '$should'\n" }
same('name', $pdb->{name}, $form_name);
same('type', $pdb->{type}, 'kelp');
same('creator', $pdb->{creator}, 'Wmpt');
same('hidden', $pdb->{attributes}{Hidden} ? 1 : 0, 1);
same('number of resources', scalar @{$pdb->{resources}}, 9 + 2 * @titles);

my %data;
for my $resource (@{$pdb->{resources}}) {
    printf "%s %d: %d bytes\n", $resource->{type}, $resource->{id}, length $resource->{data};
    $data{"$resource->{type} $resource->{id}"} = $resource->{data};
}
same('question count', unpack('n', $data{'flds 1000'}), scalar @titles);
same('column names', $data{'tSTL 1004'}, "\0" . pack('n', scalar @columns) . join('', map { "$_\0" } @columns));
for my $number (1 .. @titles) {
    my $form = $data{"tFRM $number"} // die "form $number is missing\n";
    defined $data{"fnav $number"} or die "the navigation of form $number is missing\n";
    for my $text ($titles[$number - 1], $questions[$number - 1] =~ s/\\n/\n/gr) {
        index($form, ($text // '') . "\0") >= 0 or die "form $number does not have '$text'\n";
    }
}
my $forms = join '', map { $data{"tFRM $_"} } 1 .. @titles;
index($forms, "$_\0") >= 0 or die "no form has the item '$_'\n" for @items;
