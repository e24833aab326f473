# Fills a page of the manual: awk -v version=V -v date=YYYY-MM-DD -v source=COMMAND -f page.awk TEMPLATE
# In the template stand @version@ and @date@; a line that is only @paragraphs@ or @options@ becomes the
# paragraphs or the options of a program's help, and one that is only @sections@ the sections of a
# page in Markdown. COMMAND prints that help or that page.

function escaped(text) {
    gsub(/\\/, "\\e", text)
    gsub(/-/, "\\-", text)
    return text
}

# Never a request, whatever the line begins with.
function as_line(text) { return text ~ /^[.']/ ? "\\&" text : text }

# A line of Markdown with its code in bold and its links as their text.
function inline(text,    parts, count, i, line) {
    while (match(text, /\]\([^)]*\)/))
        text = substr(text, 1, RSTART - 1) substr(text, RSTART + RLENGTH)
    count = split(text, parts, "`")
    for (i = 1; i <= count; ++i) {
        if (i % 2 == 0) {
            line = line "\\fB" escaped(parts[i]) "\\fR"
            continue
        }
        gsub(/\\/, "\\e", parts[i])
        gsub(/\[/, "", parts[i])
        line = line parts[i]
    }
    return as_line(line)
}

function trimmed(text) {
    gsub(/^ +| +$/, "", text)
    return text
}

# Each starts with what must stand before it, where the line before was of another kind.
function begin(kind) {
    if (within == "code" && kind != "code")
        print ".EE\n.RE"
    if (kind == "code" && within != "code")
        print ".PP\n.RS 4\n.EX"
    if (kind == "text" && (within == "" || within == "code" || within == "table"))
        print ".PP"
    within = kind
}

function print_section_line(line,    cells) {
    if (line ~ /^## /) {
        begin("heading")
        print ".SH " toupper(substr(line, 4))
    } else if (line ~ /^    /) {
        if (within == "code" && is_apart)
            print "\\&"
        begin("code")
        print as_line(escaped(substr(line, 5)))
    } else if (line == "") {
        if (within == "code")
            is_apart = 1
        else if (within != "heading")
            begin("")
        return
    } else if (line ~ /^\|/) {
        head_lines = within == "table" ? head_lines + 1 : 1
        begin("table")
        if (head_lines <= 2) # the names of the columns, and the rule below them
            return
        split(line, cells, "|")
        print ".TP\n" inline(trimmed(cells[2])) "\n" inline(trimmed(cells[3]))
    } else if (line ~ /^- /) {
        begin("item")
        print ".IP \\(bu 2\n" inline(substr(line, 3))
    } else if (within == "item" && line ~ /^  /) {
        print inline(trimmed(line))
    } else {
        begin(within == "heading" ? "heading" : "text")
        print inline(line)
    }
    is_apart = 0
}

function print_sections(    line, is_within) {
    within = "heading"
    while ((source | getline line) > 0) {
        sub(/\r$/, "", line)
        if (line ~ /^## /)
            is_within = 1
        if (is_within)
            print_section_line(line)
    }
    begin("")
    close(source)
}

function print_paragraphs(    line, is_open) {
    while ((source | getline line) > 0) {
        if (line ~ /^[A-Z]/ || (is_open && line ~ /^[^ ]/)) {
            if (!is_open && ++paragraphs > 1)
                print ".PP"
            is_open = 1
            print as_line(escaped(line))
        } else if (line !~ /^[^ ]/) {
            is_open = 0
        }
    }
    close(source)
}

function print_options(    line, gap) {
    while ((source | getline line) > 0) {
        if (line !~ /^  -/)
            continue
        line = substr(line, 3)
        gap = match(line, /  +/)
        print ".TP\n.B " escaped(substr(line, 1, gap - 1))
        print as_line(escaped(substr(line, gap + RLENGTH)))
    }
    close(source)
}

$0 == "@paragraphs@" { print_paragraphs(); next }
$0 == "@options@" { print_options(); next }
$0 == "@sections@" { print_sections(); next }
{
    gsub(/@version@/, version)
    gsub(/@date@/, date)
    print
}
