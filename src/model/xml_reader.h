#pragma once

#include "platform/result.h"

#include <QByteArray>

#include <string_view>

struct XML_ParserStruct;

namespace vellumo {

/// Walks once through a well-formed XML document and tells a derived class what is in it.
///
/// Names and texts are UTF-8 and live until the call returns; a prefix is a part of the name. Takes
/// time in proportion to the bytes, no stack for depth, and no more memory than some times the
/// bytes.
class XmlReader
{
public:
    virtual ~XmlReader() = default;

    /// Reads a whole document, once, in the encoding that its byte order mark or else its
    /// declaration names, or in UTF-8. Fails, with the line, where it is not well-formed or was
    /// refused, and where it has a document type, an encoding that is not known, or more than
    /// 200,000 attributes and elements that the derived class does not know. Where there are as
    /// many equals signs, a tag or comment of more than 1 MiB counts as such.
    Outcome ReadDocument(const QByteArray &bytes);

protected:
    /// Whether the name is one that is known to stand here.
    virtual bool StartElement(std::string_view name) = 0;
    /// The end of the element that was started last and has not ended yet.
    virtual void EndElement() = 0;
    /// A piece of a text that is wanted, from a CDATA section or not; one text may come in many.
    virtual void Text(std::string_view piece) = 0;

    /// Whether what follows is wanted as text; nothing is at first.
    void WantText(bool wanted);
    /// Ends the reading with this error on the line at hand; nothing more is told.
    void Refuse(const QString &reason);

private:
    struct Callbacks;

    Outcome Parse(const QByteArray &bytes, const char *encoding);
    bool Feed(QByteArrayView bytes);
    void CountForeignNames(bool elementIsKnown);

    XML_ParserStruct *m_parser = nullptr; ///< while a document is read
    QString m_refusal;                    ///< null = none
    QByteArray m_foreignEncoding;         ///< that only the toolkit may know
    int m_foreignNames = 0;
};

} // namespace vellumo
