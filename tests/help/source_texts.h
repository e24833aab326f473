#pragma once

#include "support/files.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QStringList>

// The texts that stand in sources of C++, for tests that hold the help against them.

/// The characters of a literal between its quotation marks; an escaped line end is a blank.
inline QString TextOfLiteral(const QString &written)
{
    static const QRegularExpression escape(QStringLiteral(R"(\\(.))"));
    QString text = written;
    for (qsizetype at = text.indexOf(escape); at >= 0; at = text.indexOf(escape, at + 1)) {
        const QChar escaped = text[at + 1];
        text.replace(at, 2, QStringLiteral("nrt").contains(escaped) ? QChar(u' ') : escaped);
    }
    return text;
}

/// The literals of a source in their order, those that stand side by side as one, as messages have
/// them: with single blanks and none at the ends. Comments and the names of headers are none.
inline QStringList TextsIn(const QString &source)
{
    static const QRegularExpression token(
        QStringLiteral(
            R"re(//[^\n]*|/\*.*?\*/|#include[^\n]*|\d[\w']*|'(?:[^'\\\n]|\\.)+'|\s+)re"
            R"re(|(?<string>u?R"(\w*)\((?<raw>.*?)\)\g{-2}"|u?"(?<text>(?:[^"\\]|\\.)*)"))re"
            R"re(|(?<other>\w+|.))re"),
        QRegularExpression::DotMatchesEverythingOption);
    QStringList texts;
    bool goesOn = false;
    for (auto tokens = token.globalMatch(source); tokens.hasNext();) {
        const QRegularExpressionMatch match = tokens.next();
        if (match.hasCaptured(QStringLiteral("other")))
            goesOn = false;
        if (!match.hasCaptured(QStringLiteral("string")))
            continue;
        const QString text = match.captured(QStringLiteral("raw")) +
                             TextOfLiteral(match.captured(QStringLiteral("text")));
        goesOn ? void(texts.last() += text) : texts.append(text);
        goesOn = true;
    }
    for (QString &text : texts)
        text = text.simplified();
    return texts;
}

/// The sources of a folder and those below it, as full paths, sorted.
inline QStringList SourcesBelow(const QString &folder)
{
    QStringList paths;
    QDirIterator files(folder, {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        paths += files.next();
    paths.sort();
    return paths;
}
