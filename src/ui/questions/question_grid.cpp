#include "ui/questions/question_grid.h"

#include <QHeaderView>
#include <QTableView>

namespace vellumo {

void LayOutColumns(QTableView &grid)
{
    // In the order of the columns.
    const int digits = grid.fontMetrics().horizontalAdvance(u'0');
    const int widths[] = {6, 14, 0, 15, 13};
    QHeaderView *header = grid.horizontalHeader();
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setSectionResizeMode(2, QHeaderView::Stretch);
    for (int column = 0; column < grid.model()->columnCount(); ++column)
        if (widths[column] > 0)
            header->resizeSection(column, widths[column] * digits);
    grid.verticalHeader()->hide();
}

void KeepCurrentRowSelected(QTableView &grid)
{
    QItemSelectionModel *selection = grid.selectionModel();
    QObject::connect(selection, &QItemSelectionModel::selectionChanged, &grid, [&grid, selection] {
        if (!selection->hasSelection() && grid.currentIndex().isValid())
            grid.selectRow(grid.currentIndex().row());
    });
}

} // namespace vellumo
