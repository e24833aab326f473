#pragma once

#include "ui/questions/item_list_editor.h"

#include "support/print.h"
#include "ui/questions/item_prompts.h"
#include "ui/support/prompt_script.h"

#include <QListView>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <gtest/gtest.h>

namespace vellumo {

/// What a window that holds the editor makes of it.
struct EditorWindow {
    const ItemListHost &host;
    ItemListControls names;
};

inline const EditorWindow wizard = {wizardItemList,
                                    {QStringLiteral("lstWiz4_1"), QStringLiteral("cmdWiz4_Add"),
                                     QStringLiteral("cmdWiz4_Remove"), QStringLiteral("cmdWiz4_Up"),
                                     QStringLiteral("cmdWiz4_Down")}};
inline const EditorWindow dialog = {propertyItemList,
                                    {QStringLiteral("lstSelection"), QStringLiteral("cmdNew"),
                                     QStringLiteral("cmdDelete"), QStringLiteral("cmdUp"),
                                     QStringLiteral("cmdDown")}};

/// The editor as one of its windows shows it, and the hands of a user.
class Desk
{
public:
    explicit Desk(const EditorWindow &where, const QString &type = QStringLiteral("Pulldown List"))
        : names(where.names)
    {
        editor.Configure(where.host, names);
        editor.SetType(type);
        editor.show();
    }

    QPushButton *Button(const QString &name) const
    {
        auto *button = editor.findChild<QPushButton *>(name);
        EXPECT_NE(button, nullptr) << name.toStdString();
        return button;
    }
    void Press(const QString &name) const { QTest::mouseClick(Button(name), Qt::LeftButton); }

    void Pick(int row, Qt::KeyboardModifiers keys = Qt::NoModifier) const
    {
        const QModelIndex index = editor.List()->model()->index(row, 0);
        editor.List()->scrollTo(index);
        QTest::mouseClick(editor.List()->viewport(), Qt::LeftButton, keys,
                          editor.List()->visualRect(index).center());
    }
    void Type(Qt::Key key, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        editor.activateWindow(); // a box may have been in front
        EXPECT_TRUE(QTest::qWaitForWindowActive(&editor));
        editor.List()->setFocus();
        QTest::keyClick(editor.List(), key, keys);
    }

    /// The texts that the list shows, which must be those that the editor gives.
    QStringList Shown() const
    {
        QStringList texts;
        for (int row = 0; row < editor.List()->model()->rowCount(); ++row)
            texts += editor.List()->model()->index(row, 0).data().toString();
        EXPECT_EQ(texts, editor.Items());
        return texts;
    }
    QStringList Selected() const
    {
        QModelIndexList rows = editor.List()->selectionModel()->selectedRows();
        std::sort(rows.begin(), rows.end());
        QStringList texts;
        for (const QModelIndex &index : rows)
            texts += index.data().toString();
        return texts;
    }
    QString Current() const { return editor.List()->currentIndex().data().toString(); }

    ItemListEditor editor;
    ItemListControls names;
};

/// The items "Item 0", "Item 1", ...
inline QStringList Numbered(int count)
{
    QStringList items;
    for (int i = 0; i < count; ++i)
        items += QStringLiteral("Item %1").arg(i);
    return items;
}

/// The texts of the boxes, each of which must be the designer's and warn or ask.
inline QStringList Texts(const PromptScript &prompts)
{
    QStringList texts;
    for (const SeenBox &box : prompts.boxes()) {
        texts += box.text;
        EXPECT_EQ(box.title, QStringLiteral("Vellumo Designer"));
        EXPECT_TRUE(box.icon == QMessageBox::Warning || box.icon == QMessageBox::Question);
    }
    return texts;
}

inline const QString tooManyItems = QStringLiteral("Please keep the list to 255 items or less.");

} // namespace vellumo
