#pragma once

#include "ui/common/project_document.h"

#include <QAbstractTableModel>

namespace vellumo {

/// The questions of a project as a table to look at: Order, Title, Question, Type and Column Name,
/// a row a question, in table order. Nothing in it is edited.
class QuestionModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The document must outlive the model.
    explicit QuestionModel(ProjectDocument &document, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    const ProjectDocument &m_document;
};

} // namespace vellumo
