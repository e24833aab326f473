#include "help/html_text.h"
#include "help/source_texts.h"
#include "support/print.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// The rooms whose texts the designer may show.
const QString rooms[] = {u"designer"_s,    u"editing"_s,  u"handheld"_s,  u"help/reader"_s,
                         u"model"_s,       u"palmgen"_s,  u"platform"_s,  u"readback"_s,
                         u"validation"_s,  u"ui/about"_s, u"ui/common"_s, u"ui/main"_s,
                         u"ui/questions"_s};

/// What reads like a message and is none of the designer's: a whole file, or a text.
const struct {
    QString what;
    const char *because;
} noMessages[] = {
    {u"designer/told_words.cpp"_s, "what --help prints"},
    {u"platform/work_folder.cpp"_s, "of the headless command alone"},
    {u"readback/recreation_check.cpp"_s, "of the headless command alone"},
    {u"readback/soundness_check.cpp"_s, "of the headless command alone"},
    {u"ui/about/frmAbout.cpp"_s, "the text of the about box"},
    {u"noframe nosavebehind begin title \""_s, "a line of the script"},
    {u"applicationiconname id 1000 \""_s, "a line of the script"},
    {u"\" version id 1 \""_s, "a line of the script"},
    {uR"(pilrc -ro -I "%1" "%2")"_s, "the command of a task, which messages name"},
    {uR"(build-prc -t kelp --hidden --no-check-resources "%1" %2 Wmpt %3)"_s, "likewise"},
    {uR"(<?xml version="1.0" encoding="windows-1252"?>)"_s, "a line of a project file"},
    {u"Vellumo rescue 1"_s, "the beginning of a rescue copy"},
    {u"rescue copy"_s, "one that cannot be read is passed over"},
    {u"This is no rescue copy, or it is damaged."_s, "likewise"},
    {u"settings file"_s, "one message tells of whatever is wrong with it"},
    {u"Select a folder"_s, "the title of a dialog"},
    {u"Vellumo Designer Question Wizard- Step %1"_s, "the title of a dialog"},
    {u", not valid yet"_s, "the mark of a step"},
    {u"A pulldown list is made up of a collection of text items a user can select from in the "
     "Vellsheet."_s,
     "what a step of the wizard is for"},
    {u"A set of checkboxes allows the user to mark off multiple checkboxes as an answer to your "
     "question."_s,
     "likewise"},
    {u"time of the last backup"_s, "a remark, of the headless command alone"},
    {u"modification number"_s, "likewise"},
    {u"unique id seed"_s, "likewise"},
    {u"The database was backed up at %1."_s, "likewise"},
    {u"The database is marked to be backed up."_s, "likewise"},
    {u"The handheld's count of changes is %1."_s, "likewise"},
    {u"The handheld's seed of record numbers is %1."_s, "likewise"},
    {u"Recordset isn't available yet"_s, "a mistake of the program's own"},
    {u"this number cannot stand here"_s, "told to who compiles"},
    {u"the last number leaves the record"_s, "likewise"},
    {u"every field of the form information has a rule"_s, "likewise"},
};

bool IsNone(const QString &text)
{
    return std::ranges::any_of(noMessages, [&](const auto &row) { return row.what == text; });
}

/// Two words side by side, either of which may be a place for one, or several and a stop.
bool ReadsLikeAMessage(const QString &text)
{
    static const QRegularExpression words(
        uR"(\b[A-Za-z][a-z']*[.,:]? ["'(]?([a-z]+|%\d)|%\d [a-z]{2,}|\w \w.*[.!?]$)"_s);
    return words.match(text).hasMatch();
}

struct Sources {
    QStringList texts, messages; ///< all, and those that read like a message; each once
    QStringList files;           ///< that have such a message
};

Sources ReadSources()
{
    Sources sources;
    const QDir folder(QStringLiteral(SOURCES));
    for (const QString &room : rooms)
        for (const QString &path : SourcesBelow(folder.filePath(room))) {
            QStringList texts = TextsIn(QString::fromUtf8(BytesOf(path)));
            sources.texts += texts;
            texts.removeIf([](const QString &text) { return !ReadsLikeAMessage(text); });
            if (!texts.isEmpty())
                sources.files += folder.relativeFilePath(path);
            if (!IsNone(folder.relativeFilePath(path)))
                sources.messages += texts;
        }
    sources.messages.removeDuplicates();
    sources.texts.removeDuplicates();
    return sources;
}

QStringList Messages()
{
    QStringList messages = ReadSources().messages;
    messages.removeIf(IsNone);
    return messages;
}

/// What a message shows, with something in each place.
QRegularExpression Shown(const QString &message)
{
    static const QRegularExpression place(u"%\\d"_s);
    QStringList parts = message.split(place);
    for (QString &part : parts)
        part = QRegularExpression::escape(part);
    return QRegularExpression(parts.join(u"[^\\n]{1,80}?"_s));
}

/// What stands in the first cell of each row of a page, which may be several texts.
QStringList ToldOn(const QString &page)
{
    const QString all = DecodeHtml(BytesOf(QStringLiteral(HELP_SOURCES "/") + page));
    const QString html = all.left(all.indexOf("<a name=\"system\">"_L1));
    static const QRegularExpression cell(u"<tr><td>(.*?)</td>"_s,
                                         QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression tag(u"<[^>]*>"_s);
    QStringList told;
    for (auto cells = cell.globalMatch(html); cells.hasNext();)
        for (QString text : cells.next().captured(1).split(u"<br>"_s))
            told += TitleIn("<title>"_L1 + text.remove(tag) + "</title>"_L1); // reads entities
    return told;
}

const QStringList &Told()
{
    static const QStringList told = ToldOn(u"errors.html"_s) + ToldOn(u"messages.html"_s);
    return told;
}

/// Whether a message says enough in words to be told from others.
bool IsTelling(QString message)
{
    static const QRegularExpression noLetters(u"%\\d|[^A-Za-z]"_s);
    return message.remove(noLetters).size() >= 6;
}

TEST(Messages, AreAllInTheHelp)
{
    const QStringList messages = Messages();
    EXPECT_GT(messages.size(), 150);
    const QString told = Told().join(u'\n');
    for (const QString &message : messages)
        EXPECT_TRUE(Shown(message).match(told).hasMatch()) << message.toStdString();
}

TEST(Messages, OfTheHelpStandInTheSources)
{
    QList<QRegularExpression> shown;
    for (const QString &message : Messages())
        if (IsTelling(message))
            shown += Shown(message);
    const QStringList texts = ReadSources().texts;
    for (const QString &told : Told()) {
        const auto has = [&](const QRegularExpression &message) {
            return message.match(told).hasMatch();
        };
        EXPECT_TRUE(texts.contains(told) || std::ranges::any_of(shown, has)) << told.toStdString();
    }
}

TEST(Messages, AreLeftOutForAReasonThatHolds)
{
    const Sources sources = ReadSources();
    const QString told = Told().join(u'\n');
    for (const auto &row : noMessages) {
        EXPECT_TRUE(sources.messages.contains(row.what) || sources.files.contains(row.what))
            << row.what.toStdString();
        EXPECT_FALSE(Shown(row.what).match(told).hasMatch()) << row.what.toStdString();
    }
}

} // namespace
