#include "ui/questions/question_grid.h"

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr int questionColumn = 2;
const QString questionWidth = u"questionWidth"_s;

/// The text of a question has what the other columns leave, and is never too narrow to be read:
/// then the grid scrolls.
class QuestionWidth : public QObject
{
public:
    explicit QuestionWidth(QTableView &grid) : QObject(&grid), m_grid(grid)
    {
        setObjectName(questionWidth);
        grid.viewport()->installEventFilter(this);
        Fit();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange)
            Fit();
        return QObject::eventFilter(watched, event);
    }

private:
    void Fit()
    {
        QHeaderView *header = m_grid.horizontalHeader();
        const int least = 14 * m_grid.fontMetrics().horizontalAdvance(u'0');
        const int others = header->length() - header->sectionSize(questionColumn);
        if (m_grid.viewport()->width() - others >= least)
            return header->setSectionResizeMode(questionColumn, QHeaderView::Stretch);
        header->setSectionResizeMode(questionColumn, QHeaderView::Interactive);
        header->resizeSection(questionColumn, least);
    }

    QTableView &m_grid;
};

} // namespace

void LayOutColumns(QTableView &grid)
{
    // In the order of the columns.
    const int digits = grid.fontMetrics().horizontalAdvance(u'0');
    const int widths[] = {6, 14, 0, 15, 13};
    QHeaderView *header = grid.horizontalHeader();
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (int column = 0; column < grid.model()->columnCount(); ++column)
        if (widths[column] > 0)
            header->resizeSection(column, widths[column] * digits);
    grid.verticalHeader()->hide();
    delete grid.findChild<QObject *>(questionWidth, Qt::FindDirectChildrenOnly); // of last time
    new QuestionWidth(grid);
}

void KeepCurrentRowSelectedAndSeen(QTableView &grid)
{
    QItemSelectionModel *selection = grid.selectionModel();
    QObject::connect(selection, &QItemSelectionModel::selectionChanged, &grid, [&grid, selection] {
        if (!selection->hasSelection() && grid.currentIndex().isValid())
            grid.selectRow(grid.currentIndex().row());
    });
    // What stands below the preview takes some of the grid's height, which it has only afterwards.
    QObject::connect(
        grid.verticalScrollBar(), &QScrollBar::rangeChanged, &grid,
        [&grid] { grid.scrollTo(grid.currentIndex()); }, Qt::QueuedConnection);
}

} // namespace vellumo
