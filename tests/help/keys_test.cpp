#include "help/source_texts.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <map>

using namespace Qt::StringLiterals;

namespace {

/// What the page says for a name of the toolkit's; others stand as they are.
const std::map<QString, QString> words = {
    {u"CTRL"_s, u"Ctrl"_s},
    {u"ALT"_s, u"Alt"_s},
    {u"SHIFT"_s, u"Shift"_s},
    {u"PageUp"_s, u"Page Up"_s},
    {u"PageDown"_s, u"Page Down"_s},
    {u"Return"_s, u"Enter"_s},
    {u"Escape"_s, u"Esc"_s},
    {u"Space"_s, u"space bar"_s},
    {u"Backtab"_s, u"Tab"_s},
    {u"Left"_s, u"arrow keys"_s}, // with Alt in the help window alone, whose keys are text
    {u"Right"_s, u"arrow keys"_s},
    {u"New"_s, u"Ctrl+N"_s},
    {u"Open"_s, u"Ctrl+O"_s},
    {u"Save"_s, u"Ctrl+S"_s},
    {u"SaveAs"_s, u"Ctrl+Shift+S"_s},
    {u"Quit"_s, u"Ctrl+Q"_s},
    {u"Undo"_s, u"Ctrl+Z"_s},
    {u"Redo"_s, u"Ctrl+Shift+Z"_s},
    {u"Copy"_s, u"Ctrl+C"_s},
    {u"Cut"_s, u"Ctrl+X"_s},
    {u"Paste"_s, u"Ctrl+V"_s},
};

QString Word(const QString &name)
{
    const auto found = words.find(name);
    return found == words.end() ? name : found->second;
}

QString AllOf(const QString &suffix)
{
    QString text;
    QDirIterator files(QStringLiteral(SOURCES "/ui"), {suffix}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        text += QString::fromUtf8(BytesOf(files.next()));
    return text;
}

/// The keys of the windows, as the page names them.
QStringList KeysOfWindows()
{
    static const QRegularExpression key(
        u"((?:Qt::(?:CTRL|ALT|SHIFT) \\| )*)Qt::Key_(\\w+)|QKeySequence::([A-Z]\\w+)"_s);
    static const QRegularExpression shortcut(u"name=\"shortcut\">\\s*<string>([^<]+)</string>"_s);
    QStringList keys;
    const QString code = AllOf(u"*.cpp"_s) + AllOf(u"*.h"_s);
    for (auto match = key.globalMatch(code); match.hasNext();) {
        const auto found = match.next();
        QStringList parts;
        for (const QString &part : found.captured(1).split(u" | "_s, Qt::SkipEmptyParts))
            parts += Word(part.sliced(4)); // behind Qt::
        keys += (parts << Word(found.captured(2) + found.captured(3))).join(u'+');
    }
    for (auto match = shortcut.globalMatch(AllOf(u"*.ui"_s)); match.hasNext();)
        keys += match.next().captured(1);
    keys.removeAll(u"StandardKey"_s); // a type
    keys.removeDuplicates();
    return keys;
}

TEST(Keys, AreAllInTheHelp)
{
    const QString page = QString::fromUtf8(BytesOf(QStringLiteral(HELP_SOURCES "/keys.html")));
    const QStringList keys = KeysOfWindows();
    EXPECT_GT(keys.size(), 30) << keys.join(u' ').toStdString();
    for (const QString &key : keys)
        EXPECT_TRUE(page.contains(
            QRegularExpression(u"(?<![\\w+])%1\\b"_s.arg(QRegularExpression::escape(key)))))
            << key.toStdString();
}

} // namespace
