#include "ui/questions/item_list_editor.h"

#include "editing/built_in_names.h"
#include "editing/clipboard_texts.h"
#include "editing/pasted_items.h"
#include "help/help_topics.h"
#include "model/question_types.h"
#include "ui/common/focus_ring.h"
#include "ui/common/prompts.h"
#include "ui/questions/ask_item.h"
#include "ui/questions/one_line_delegate.h"
#include "ui/questions/row_dragging.h"
#include "ui/questions/row_keys.h"
#include "ui_item_list_editor.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
ItemListEditor::ItemListEditor(QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::ItemListEditor>())
{
    ui->setupUi(this);
    ui->list->setModel(&m_shown);
    ui->list->setItemDelegate(new OneLineDelegate(this));
    setFocusProxy(ui->list);
    RingWhenFocused(ui->list);

    connect(ui->add, &QPushButton::clicked, this, &ItemListEditor::AddItem);
    connect(ui->remove, &QPushButton::clicked, this, &ItemListEditor::RemoveItems);
    connect(ui->up, &QPushButton::clicked, this, [this] { MoveItem(-1); });
    connect(ui->down, &QPushButton::clicked, this, [this] { MoveItem(+1); });
    connect(ui->cmd_sort, &QPushButton::clicked, this, &ItemListEditor::SortItems);
    connect(ui->cmd_Clear, &QPushButton::clicked, this, &ItemListEditor::ClearItems);
    connect(ui->cmd_AddState, &QPushButton::clicked, this, [this] { AddNames(StateNames()); });
    connect(ui->cmd_AddCountry, &QPushButton::clicked, this, [this] { AddNames(CountryNames()); });

    ConnectKeys();
    new RowDragging(ui->list,
                    [this](int, int gap) { ShowMoved(m_items.MoveTo(Selection(), gap)); });
}

ItemListEditor::~ItemListEditor() = default;

/// While the list has the focus.
void ItemListEditor::ConnectKeys()
{
    const auto call = [this](const QList<QKeySequence> &keys, auto action) {
        CallByKeys(ui->list, keys, Qt::WidgetShortcut, action);
    };
    call({Qt::Key_Insert}, [this] { ui->add->click(); });
    call({Qt::Key_Delete}, [this] { ui->remove->click(); });
    call({Qt::ALT | Qt::Key_Up}, [this] { ui->up->click(); });
    call({Qt::ALT | Qt::Key_Down}, [this] { ui->down->click(); });
    for (const MoveKey &move : moveKeys)
        call({move.key}, [this, move] { MoveItem(move.distance); });
    call(QKeySequence::keyBindings(QKeySequence::Copy), [this] { CopyItems(); });
    call(QKeySequence::keyBindings(QKeySequence::Cut), [this] { CutItems(); });
    call(QKeySequence::keyBindings(QKeySequence::Paste), [this] { PasteLines(); });
    call(QKeySequence::keyBindings(QKeySequence::Undo), [this] { GoTo(m_before, m_after); });
    call(QKeySequence::keyBindings(QKeySequence::Redo), [this] { GoTo(m_after, m_before); });
}

void ItemListEditor::Configure(const ItemListHost &host, const ItemListControls &controls)
{
    m_host = &host;
    ui->list->setObjectName(controls.list);
    ui->add->setObjectName(controls.add);
    ui->remove->setObjectName(controls.remove);
    ui->up->setObjectName(controls.up);
    ui->down->setObjectName(controls.down);
}

void ItemListEditor::SetType(const QString &type)
{
    m_type = type;
    const QuestionType *known = TypeNamed(type);
    const bool offersNames = known && known->items && known->items->offersNames;
    ui->cmd_AddState->setVisible(offersNames);
    ui->cmd_AddCountry->setVisible(offersNames);
}

void ItemListEditor::SetItems(const QStringList &items)
{
    m_items.SetItems(items);
    Show({}, -1);
    m_before.clear();
    m_after.clear();
}

QListView *ItemListEditor::List() const
{
    return ui->list;
}

void ItemListEditor::AddItem()
{
    QString refusal = m_items.RefusalToAdd(*m_host, m_type);
    if (refusal.isEmpty())
        refusal =
            m_items.Add(AskItem(this, *m_host, [this] { emit HelpAsked(HelpContext::items); }));
    ShowRefusal(refusal);
    ShowAppended();
}

void ItemListEditor::AddNames(const QStringList &names)
{
    ShowRefusal(m_items.AddNames(names));
    ShowAppended();
}

void ItemListEditor::RemoveItems()
{
    const ItemList::Rows selection = Selection();
    const ItemList::Change change = m_items.Remove(selection);
    if (!change.refusal.isEmpty())
        return ShowRefusal(change.refusal);
    const qsizetype last = m_items.Items().size() - 1;
    ShowAll(change.selection, std::min(std::ranges::min(selection), last));
}

void ItemListEditor::MoveItem(qsizetype distance)
{
    ShowMoved(m_items.Move(Selection(), distance));
}

void ItemListEditor::ShowMoved(const ItemList::Change &change)
{
    if (!change.refusal.isEmpty())
        return ShowRefusal(change.refusal);
    ShowAll(change.selection, change.selection.first());
}

/// The selected items in the order of the list, a line each; whether there are any.
bool ItemListEditor::CopyItems()
{
    ItemList::Rows rows = Selection();
    std::ranges::sort(rows);
    QStringList lines;
    for (const qsizetype row : rows)
        lines += m_items.Items()[row];
    if (!lines.isEmpty())
        QGuiApplication::clipboard()->setText(lines.join(u'\n'));
    return !lines.isEmpty();
}

void ItemListEditor::CutItems()
{
    if (CopyItems())
        RemoveItems();
}

void ItemListEditor::PasteLines()
{
    const QStringList lines = LinesOf(QGuiApplication::clipboard()->text());
    const QString refused = PasteItems(m_items, *m_host, m_type, lines);
    ShowAppended();
    ShowRefusal(refused);
}

void ItemListEditor::ClearItems()
{
    if (m_items.Items().isEmpty())
        return;
    if (AskYesNo(this, u"Are you sure you want to delete all the items?"_s) == "No"_L1)
        return;
    m_items.Clear();
    ShowAll({}, -1);
}

void ItemListEditor::SortItems()
{
    m_items.Sort();
    ShowAll({}, -1);
}

ItemList::Rows ItemListEditor::Selection() const
{
    ItemList::Rows rows;
    for (const QModelIndex &index : ui->list->selectionModel()->selectedRows())
        rows += index.row();
    return rows;
}

void ItemListEditor::ShowRefusal(const QString &refusal)
{
    if (!refusal.isEmpty())
        ShowExclamation(this, refusal);
}

void ItemListEditor::Remember()
{
    if (m_shown.stringList() == m_items.Items())
        return;
    m_before += m_shown.stringList();
    m_after.clear();
}

void ItemListEditor::GoTo(QList<QStringList> &there, QList<QStringList> &back)
{
    if (there.isEmpty())
        return;
    const QStringList items = there.takeLast();
    const QStringList left = m_items.Items();
    back += left;
    m_items.SetItems(items);
    const auto changed = std::ranges::mismatch(items, left).in1 - items.begin();
    const qsizetype row = std::min(changed, items.size() - 1);
    Show(row >= 0 ? ItemList::Rows{row} : ItemList::Rows(), row);
}

/// Keeps the selection and what is current.
void ItemListEditor::ShowAppended()
{
    Remember();
    const QStringList items = m_items.Items();
    const int shown = m_shown.rowCount();
    const int count = static_cast<int>(items.size());
    if (shown == count)
        return;
    m_shown.insertRows(shown, count - shown);
    for (int row = shown; row < count; ++row)
        m_shown.setData(m_shown.index(row), items[row]);
    ui->list->scrollToBottom();
}

void ItemListEditor::ShowAll(const ItemList::Rows &selection, qsizetype current)
{
    Remember();
    Show(selection, current);
}

void ItemListEditor::Show(const ItemList::Rows &selection, qsizetype current)
{
    const auto indexOf = [this](qsizetype row) { return m_shown.index(static_cast<int>(row)); };
    m_shown.setStringList(m_items.Items());
    QItemSelectionModel *chosen = ui->list->selectionModel();
    for (const qsizetype row : selection)
        chosen->select(indexOf(row), QItemSelectionModel::Select);
    if (current >= 0)
        chosen->setCurrentIndex(indexOf(current), QItemSelectionModel::NoUpdate);
}

} // namespace vellumo
