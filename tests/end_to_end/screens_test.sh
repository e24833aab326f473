#!/usr/bin/env bash
# A page of screens in a browser, light and dark, narrow and printed:
# screens_test.sh VELLUMO PROJECT DATABASE. The project has 10 questions, the database 128.
set -euo pipefail

vellumo=$1 project=$2 database=$3
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
