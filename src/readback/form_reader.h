#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QList>

namespace vellumo {

enum class ObjectKind : quint32 {
    Field = 0,
    Control = 1, ///< button, check box, popup trigger, selector trigger: its style tells
    List = 2,
    Table = 3,
    Label = 8,
    Title = 9,
    PopupList = 10,
    GraffitiIndicator = 11,
    Gadget = 12,
    ScrollBar = 13,
};

/// An object of a form with the numbers and flags that are stored for it; what its kind does not
/// have is 0 or empty. Places are pixels of the screen; numbers are unsigned.
struct FormObject {
    ObjectKind kind;
    quint32 number = 0; ///< of a popup list: that of its trigger
    quint32 x = 0, y = 0, width = 0, height = 0;
    quint32 flags = 0;
    quint32 style = 0;
    quint32 font = 0;
    quint32 group = 0;
    quint32 maxChars = 0;
    quint32 rows = 0;
    quint32 value = 0, minimum = 0, maximum = 0, pageSize = 0;
    quint32 list = 0; ///< number of the list of a popup list
    QByteArray text = {};
    QList<QByteArray> items = {};
    QList<quint32> columnWidths = {};
};

struct Form {
    quint32 number = 0;
    quint32 x = 0, y = 0, width = 0, height = 0;
    quint32 frame = 0;
    quint32 flags = 0;
    QList<FormObject> objects = {};
};

/// An object for a message, such as "button 97" or "title".
QString Describe(const FormObject &object);

/// Decodes a form ('tFRM') to its last byte. Fails, with words that go on after "... is damaged: ",
/// where the directory, an object, its padding or the end do not add up, or a byte that is always
/// zero is not. Numbers and flags are taken as they are. Any bytes may be given.
Result<Form> ReadForm(const QByteArray &resource);

} // namespace vellumo
