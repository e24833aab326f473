#include "ui/questions/item_list_editor.h"

#include "editing/built_in_names.h"
#include "model/question_types.h"
#include "model/texts.h"
#include "ui/common/prompts.h"
#include "ui_item_list_editor.h"

#include <QShortcut>
#include <QStyledItemDelegate>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// Shows each item on one line as wide as the list, however long or broken its text from a file is.
class OneLine : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &) const override
    {
        constexpr qsizetype more = 1000; // than any list is wide
        const QString text = value.toString();
        QString shown = text.left(more);
        shown.replace(u'\n', u' ');
        return shown.size() < text.size() ? shown + QChar(0x2026) : shown;
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return {0, QStyledItemDelegate::sizeHint(option, index).height()};
    }
};

/// The keys press the button while the list has the focus.
void PressByKeys(QListView *list, QPushButton *button, const QKeySequence &keys)
{
    auto *shortcut = new QShortcut(keys, list);
    shortcut->setContext(Qt::WidgetShortcut);
    QObject::connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
}

} // namespace

ItemListEditor::ItemListEditor(QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::ItemListEditor>())
{
    ui->setupUi(this);
    ui->list->setModel(&m_shown);
    ui->list->setItemDelegate(new OneLine(this));
    setFocusProxy(ui->list);

    connect(ui->add, &QPushButton::clicked, this, &ItemListEditor::AddItem);
    connect(ui->remove, &QPushButton::clicked, this, &ItemListEditor::RemoveItems);
    connect(ui->up, &QPushButton::clicked, this, [this] { MoveItem(&ItemList::MoveUp); });
    connect(ui->down, &QPushButton::clicked, this, [this] { MoveItem(&ItemList::MoveDown); });
    connect(ui->cmd_sort, &QPushButton::clicked, this, &ItemListEditor::SortItems);
    connect(ui->cmd_Clear, &QPushButton::clicked, this, &ItemListEditor::ClearItems);
    connect(ui->cmd_AddState, &QPushButton::clicked, this, [this] { AddNames(StateNames()); });
    connect(ui->cmd_AddCountry, &QPushButton::clicked, this, [this] { AddNames(CountryNames()); });

    PressByKeys(ui->list, ui->add, Qt::Key_Insert);
    PressByKeys(ui->list, ui->remove, Qt::Key_Delete);
    PressByKeys(ui->list, ui->up, Qt::ALT | Qt::Key_Up);
    PressByKeys(ui->list, ui->down, Qt::ALT | Qt::Key_Down);
}

ItemListEditor::~ItemListEditor() = default;

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
    ShowAll({}, -1);
}

QListView *ItemListEditor::List() const
{
    return ui->list;
}

void ItemListEditor::AddItem()
{
    QString refusal = m_items.RefusalToAdd(*m_host, m_type);
    if (refusal.isEmpty())
        refusal = m_items.Add(AskItem());
    ShowRefusal(refusal);
    ShowAppended();
}

/// A text that can be an item, or empty when the user gave up. Only a first answer is trimmed.
QString ItemListEditor::AskItem()
{
    const QString title = u"New Item"_s;
    QString text = TrimBlanks(AskText(this, title, m_host->firstPrompt)).toString();
    for (;;) {
        const QString objection = ObjectionToItem(text);
        if (objection.isEmpty())
            return text;
        ShowExclamation(this, objection);
        text = AskText(this, title, againPrompt);
    }
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

void ItemListEditor::MoveItem(ItemList::Change (ItemList::*moved)(const ItemList::Rows &))
{
    const ItemList::Change change = (m_items.*moved)(Selection());
    if (!change.refusal.isEmpty())
        return ShowRefusal(change.refusal);
    ShowAll(change.selection, change.selection.first());
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

/// Keeps the selection and what is current.
void ItemListEditor::ShowAppended()
{
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
    const auto indexOf = [this](qsizetype row) { return m_shown.index(static_cast<int>(row)); };
    m_shown.setStringList(m_items.Items());
    QItemSelectionModel *chosen = ui->list->selectionModel();
    for (const qsizetype row : selection)
        chosen->select(indexOf(row), QItemSelectionModel::Select);
    if (current >= 0)
        chosen->setCurrentIndex(indexOf(current), QItemSelectionModel::NoUpdate);
}

} // namespace vellumo
