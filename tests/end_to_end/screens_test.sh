#!/usr/bin/env bash
# A page of screens in a browser, light and dark, narrow and printed:
# screens_test.sh VELLUMO PROJECT DATABASE COUNTRIES. The project has 10 questions, the database 128;
# the countries are 240, with semicolons between them.
set -euo pipefail

vellumo=$1 project=$2 database=$3 countries=$4
browser=$(command -v chromium || command -v chromium-browser || command -v google-chrome || true)
if [ -z "$browser" ]; then
    echo 'Skipped: there is no Chromium.'
    exit 77
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

browse() { # [OPTION]... PAGE
    local options=(--headless --disable-gpu --no-first-run "--user-data-dir=$work/profile")
    [ "$(id -u)" -ne 0 ] || options+=(--no-sandbox)
    HOME=$work timeout 120 "$browser" "${options[@]}" "${@:1:$#-1}" "file://$work/${!#}" 2>browser.log ||
        { cat browser.log >&2; fail "The browser failed on ${!#}"; }
}

"$vellumo" screens "$project" -o page.html 2>/dev/null
"$vellumo" screens "$database" -o many.html

# A copy that may run a script measures itself and becomes its own report.
cat >measure.js <<'JS'
const report = {texts: 0, worst: 0, screens: 0, pixels: true, overflow: 0};
for (const svg of document.querySelectorAll('svg')) {
    const frame = svg.getBoundingClientRect(), scale = frame.width / 160;
    ++report.screens;
    report.pixels = report.pixels && Number.isInteger(scale) && frame.height === frame.width;
    for (const text of svg.querySelectorAll('text')) {
        const place = text.getBoundingClientRect();
        const off = [place.width / scale - text.getAttribute('textLength'),
                     (place.left - frame.left) / scale - text.getAttribute('x')];
        ++report.texts;
        report.worst = Math.max(report.worst, ...off.map(Math.abs));
    }
}
report.fits = report.worst <= 1;
report.overflow = document.documentElement.scrollWidth - window.innerWidth;
report.ground = getComputedStyle(document.body).backgroundColor;
report.paper = getComputedStyle(document.querySelector('.paper')).fill;
document.documentElement.innerHTML = Object.entries(report).map(([k, v]) => k + '=' + v).join('\n');
JS
{
    sed "s,</body></html>,,; s,default-src 'none'; style-src 'unsafe-inline',," page.html
    printf '<script>\n'
    cat measure.js
    printf '</script></body></html>\n'
} >measured.html

value() { sed -n "s/.*\b$1=\([^<]*\).*/\1/p" report; }

measure() { # WHAT [OPTION]...
    browse "${@:2}" --dump-dom measured.html >report
    [ "$(value screens)" = 11 ] || fail "$1: not ten screens and a list, $(cat report)"
    [ "$(value texts)" -ge 60 ] || fail "$1: texts are missing, $(cat report)"
    [ "$(value fits)" = true ] ||
        fail "$1: a text is not as wide as the handheld's font makes it, or elsewhere: $(cat report)"
    [ "$(value pixels)" = true ] || fail "$1: a pixel of the handheld is not a whole number of pixels"
    [ "$(value overflow)" -le 0 ] || fail "$1: the page is wider than its window"
    [ "$(value paper)" = 'rgb(255, 255, 255)' ] || fail "$1: the handheld's screen is not white"
    printf '%s: %s texts, at most %s of a pixel off\n' "$1" "$(value texts)" "$(value worst)"
}

measure 'wide' --window-size=1400,1000
light=$(value ground)
measure 'narrow' --window-size=500,900
measure 'dark' --window-size=1400,1000 --blink-settings=preferredColorScheme=0
[ "$(value ground)" != "$light" ] || fail 'Dark and light have the same ground'

pages() { # PAGE: how many there are of it on paper
    browse --no-pdf-header-footer "--print-to-pdf=$work/print.pdf" "$1"
    grep -aoE '/Type ?/Page\b' print.pdf | wc -l
}
[ "$(pages page.html)" = 2 ] || fail "Ten screens take $(pages page.html) pages and not 2"
[ "$(pages many.html)" = 22 ] || fail "128 screens take $(pages many.html) pages and not 22"

# Lists that are long, texts that are wide and more misfits than there is room for.
crowded() { # COUNT: a project of so many questions
    local wide='A country with a name that is far too wide for the screen' number items=() item
    local types=(Checkboxes 'Pulldown List')
    printf '<root><Company>Brindlecot Data Collect</Company>'
    printf '<FormName>Crowded</FormName><FormVersion>1</FormVersion>'
    printf '<Description>%s</Description>' "$(printf 'Where in the world it was. %.0s' {1..7})"
    printf '<FormPath>C:\\D</FormPath><MaxId>99</MaxId><rcMain>'
    for ((number = 1; number <= $1; ++number)); do
        printf '<record><Order>%d</Order><Type>%s</Type>' "$number" "${types[number % 3 > 0]}"
        printf '<Title>Country %d</Title><ColumnName>COUNTRY_%d</ColumnName>' "$number" "$number"
        printf '<Question>In which country was it seen for the first time, and where %s</Question>' \
            'is it now, as far as anybody at the water point can tell?'
        printf '<Id>%d</Id></record>' "$number"
    done
    printf '</rcMain><rcChilds>'
    for ((number = 1; number <= $1; ++number)); do
        items=("$wide "{1..100})
        ((number % 3 != 1)) || IFS=';' read -ra items <"$countries"
        for item in "${items[@]}"; do
            printf '<record><Id>%d</Id><Item>%s</Item></record>' "$number" "$item"
        done
    done
    printf '</rcChilds><TitleList></TitleList></root>'
}

for count in 6 7; do
    crowded "$count" >crowded.vmp
    "$vellumo" screens crowded.vmp -o crowded.html 2>/dev/null
    for paper in A4 Letter; do
        sed "s/@page {/& size: $paper;/" crowded.html >"$paper.html"
        [ "$(pages "$paper.html")" = $((count - 5)) ] ||
            fail "$count crowded screens take $(pages "$paper.html") pages of $paper and not $((count - 5))"
    done
done

# What stands in a card on paper, on a window as wide as what is printed of Letter and of A4.
cat >cards.js <<'JS'
const cards = [...document.querySelectorAll('article')];
const report = {
    cards: cards.length,
    cut: cards.map(card => card.scrollHeight - card.clientHeight).filter(more => more > 0).join(),
    small: [...document.querySelectorAll('svg')].filter(
        svg => svg.getBoundingClientRect().width < 85 || svg.clientWidth > card(svg).clientWidth).length,
    seen: cards.map(card => ['li', 'p.misfit:not(.printed)'].map(name => [...card.querySelectorAll(name)]
        .filter(one => one.getClientRects().length).length).join('+')).join(' '),
    more: [...cards[2].querySelectorAll('.printed')].map(one => one.innerText).join(),
};
function card(svg) { return svg.closest('article'); }
document.documentElement.innerHTML = Object.entries(report).map(([k, v]) => k + '=' + v).join('\n');
JS
{
    sed "s,</body></html>,,; s,default-src 'none'; style-src 'unsafe-inline',,; s,@media print,@media all," \
        crowded.html
    printf '<script>\n'
    cat cards.js
    printf '</script></body></html>\n'
} >cards.html
for width in 710 732; do
    browse "--window-size=$width,1000" --dump-dom cards.html >report
    [ "$(value cards)" = 7 ] || fail "Not seven cards: $(cat report)"
    [ -z "$(value cut)" ] || fail "A card on paper has more than it shows: $(cat report)"
    [ "$(value small)" = 0 ] || fail "A drawing on paper is too small or too wide: $(cat report)"
    [ "$(value seen)" = '8+2 8+3 8+3 8+2 8+3 8+3 8+2' ] || fail "Other items or misfits: $(cat report)"
    [ "$(value more)" = '... and 92 more,... and 98 more' ] || fail "They are not counted: $(cat report)"
done
