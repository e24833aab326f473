#pragma once

class QTableView;

namespace vellumo {

/// Gives the columns of the grid their widths; the question's text takes what is left.
void LayOutColumns(QTableView &grid);

/// Has the current row of the grid selected whatever is clicked, and in sight whenever the grid
/// gets another size or other rows.
void KeepCurrentRowSelectedAndSeen(QTableView &grid);

} // namespace vellumo
