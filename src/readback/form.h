#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace vellumo {

/// The kinds of object, by the numbers that the directory of a form has for them.
enum class ObjectKind : quint32 {
    Field = 0,
    Control = 1, ///< its style tells which
    List = 2,
    Table = 3,
    Label = 8,
    Title = 9,
    PopupList = 10,
    GraffitiIndicator = 11,
    Gadget = 12,
    ScrollBar = 13,
};

/// What a control is. Number 1 is a style of the handheld's that no form of ours has.
enum class ControlStyle : quint32 {
    Button = 0,
    CheckBox = 2,
    PopupTrigger = 3,
    SelectorTrigger = 4,
};

/// An object of a form with the numbers and flags that are stored for it; what its kind does not
/// have is 0 or empty. Places are pixels of the screen; numbers are unsigned.
struct FormObject {
    ObjectKind kind;
    quint32 number = 0; ///< of a popup list: that of its trigger
    quint32 x = 0, y = 0, width = 0, height = 0;
    quint32 flags = 0; ///< form_flags.h
    quint32 style = 0; ///< a ControlStyle
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

/// A kind for a message, such as "list"; "object" where the number is of no kind.
QString NameOf(ObjectKind kind);

/// An object for a message, such as "button 97" or "title".
QString Describe(const FormObject &object);

} // namespace vellumo
