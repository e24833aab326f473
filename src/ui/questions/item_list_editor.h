#pragma once

#include "editing/item_list.h"

#include <QStringListModel>
#include <QWidget>

#include <memory>

class QListView;

namespace vellumo {
namespace Ui {
class ItemListEditor;
}

/// The objectNames that differ between the windows that hold an item list editor.
struct ItemListControls {
    QString list, add, remove, up, down;
};

/// The items of a question with the buttons and keys that change them, and the mouse. What is
/// refused is told in a box.
class ItemListEditor : public QWidget
{
    Q_OBJECT

public:
    explicit ItemListEditor(QWidget *parent = nullptr);
    ~ItemListEditor() override;

    /// Once, before use; the host must outlive the editor.
    void Configure(const ItemListHost &host, const ItemListControls &controls);

    /// The question type decides about the limits, and whether states and countries are offered.
    void SetType(const QString &type);

    /// Nothing is selected then, and nothing can be taken back; the direction of the next sort
    /// stays.
    void SetItems(const QStringList &items);
    QStringList Items() const { return m_items.Items(); }

    QListView *List() const;

signals:
    /// F1 asked for help where an item is typed; contextId is the number of a help topic.
    void HelpAsked(quint32 contextId);

private:
    void ConnectKeys();
    void AddItem();
    void AddNames(const QStringList &names);
    void RemoveItems();
    void MoveItem(qsizetype distance);
    void ShowMoved(const ItemList::Change &change);
    bool CopyItems();
    void CutItems();
    void PasteLines();
    void ClearItems();
    void SortItems();

    ItemList::Rows Selection() const;
    void ShowRefusal(const QString &refusal);
    /// What is shown is what was before, until the new items are.
    void Remember();
    /// Goes to the items that the one list has last, and lets the other lead back.
    void GoTo(QList<QStringList> &there, QList<QStringList> &back);
    void ShowAppended();
    /// As a step. The current entry is told by its row; a row that does not exist leaves none
    /// current.
    void ShowAll(const ItemList::Rows &selection, qsizetype current);
    /// The same, and no step.
    void Show(const ItemList::Rows &selection, qsizetype current);

    std::unique_ptr<Ui::ItemListEditor> ui;
    const ItemListHost *m_host = nullptr;
    QString m_type;
    ItemList m_items;
    QStringListModel m_shown;
    QList<QStringList> m_before, m_after; ///< each step that can be taken back, or again
};

} // namespace vellumo
