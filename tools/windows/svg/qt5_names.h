#pragma once

// Included before every source of Qt 5's SVG module, so that Qt 6 compiles it.

#include <QString>
#include <QStringView>

/// What a text of Qt 5 shared with another is a view now, as Qt 6 has it for its XML attributes.
class QStringRef : public QStringView
{
public:
    using QStringView::QStringView;
    QStringRef(QStringView view) : QStringView(view) {}
    QStringRef(const QString *text) : QStringView(*text) {}
    QStringRef(const QStringView *text, qsizetype start, qsizetype length)
        : QStringView(text->mid(start, length))
    {}
    QStringRef(const QString *text, qsizetype start, qsizetype length)
        : QStringView(QStringView(*text).mid(start, length))
    {}

    const QStringView *string() const { return this; }
    qsizetype position() const { return 0; }
    const QChar *unicode() const { return constData(); }
    /// Never null: who reads goes on to what is no digit.
    const QChar *constData() const
    {
        static constexpr QChar end;
        return isNull() ? &end : data();
    }
};

/// The text itself, for those who keep it.
class QXmlStreamStringRef
{
public:
    QXmlStreamStringRef() = default;
    QXmlStreamStringRef(QStringView text) : m_text(text.toString()) {}
    operator QStringRef() const { return &m_text; }

private:
    QString m_text;
};
