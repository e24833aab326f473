#pragma once

class QTableView;

namespace vellumo {

/// Gives the columns of the grid their widths; the question's text takes what is left.
void LayOutColumns(QTableView &grid);

/// Has the current row of the grid selected whatever is clicked.
void KeepCurrentRowSelected(QTableView &grid);

} // namespace vellumo
