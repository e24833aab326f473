#include "ui/questions/question_model.h"

#include <iterator>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

/// A cell shows no more, and a project that can be created has no longer texts; those of others
/// would take long to lay out.
QVariant Cell(const QString &text)
{
    constexpr qsizetype shown = 256;
    return text.size() <= shown ? text : text.first(shown);
}

struct Column {
    QLatin1StringView caption;
    QVariant (*value)(const QuestionRow &row);
};

constexpr Column columns[] = {
    {"Order"_L1, [](const QuestionRow &row) { return QVariant(row.Order); }},
    {"Title"_L1, [](const QuestionRow &row) { return Cell(row.Title); }},
    {"Question"_L1, [](const QuestionRow &row) { return Cell(row.Question); }},
    {"Type"_L1, [](const QuestionRow &row) { return Cell(row.Type); }},
    {"Column Name"_L1, [](const QuestionRow &row) { return Cell(row.ColumnName); }},
};

} // namespace

QuestionModel::QuestionModel(ProjectDocument &document, QObject *parent)
    : QAbstractTableModel(parent), m_document(document)
{
    connect(&document, &ProjectDocument::QuestionsAboutToChange, this,
            [this] { beginResetModel(); });
    connect(&document, &ProjectDocument::QuestionsChanged, this, [this] { endResetModel(); });
}

int QuestionModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_document.source().QuestionCount();
}

int QuestionModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(std::size(columns));
}

QVariant QuestionModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    const auto &rows = m_document.source().Questions().Rows();
    return columns[index.column()].value(rows[index.row()]);
}

QVariant QuestionModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    return QString(columns[section].caption);
}

} // namespace vellumo
