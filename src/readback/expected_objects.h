#pragma once

#include "readback/form.h"

/// The objects that the forms of questions are made of. Places are pixels of the screen.
namespace vellumo::expected {

struct Rectangle {
    quint32 x, y, width, height;
};

enum class Font : quint32 { Standard = 0, Bold = 1, Symbols = 3 };

FormObject Title(const QByteArray &text);
FormObject Label(quint32 number, quint32 x, quint32 y, const QByteArray &text,
                 Font font = Font::Standard);

/// A field of several underlined lines that text is written into.
FormObject TextField(quint32 number, Rectangle place, quint32 maxChars);
/// An underlined field of one line that takes digits alone.
FormObject NumberField(quint32 number, Rectangle place, quint32 maxChars);
/// A field of one line that only shows something.
FormObject ShownField(quint32 number, Rectangle place, quint32 maxChars);
FormObject GraffitiIndicator(quint32 x, quint32 y);

FormObject FramedButton(quint32 number, Rectangle place, const QByteArray &text);
FormObject SymbolButton(quint32 number, Rectangle place, const QByteArray &symbol);
/// One of a group, of which only one can be marked.
FormObject CheckBox(quint32 number, Rectangle place, quint32 group, const QByteArray &text);
FormObject SelectorTrigger(quint32 number, Rectangle place, const QByteArray &text);
/// A trigger without a text of its own, and what ties it to its list.
FormObject PopupTrigger(quint32 number, Rectangle place);
FormObject PopupList(quint32 trigger, quint32 list);

/// A list that is hidden until it is asked for, without items yet and as narrow as without letters.
FormObject HiddenList(quint32 number, quint32 x, quint32 y, quint32 height);
/// Gives such a list its items, and the width that they need.
void Fill(FormObject &list, const QList<QByteArray> &items);

FormObject EditableTable(quint32 number, Rectangle place, quint32 rows,
                         const QList<quint32> &columnWidths);
/// A scroll bar from 0 to 100 that stands in the middle, a page being 10.
FormObject ScrollBar(quint32 number, Rectangle place);
FormObject Gadget(quint32 number, Rectangle place);

} // namespace vellumo::expected
