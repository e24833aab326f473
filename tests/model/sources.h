#pragma once

#include "model/clsDataSource.h"

#include "support/print.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace vellumo {

/// Questions with these column names and ids from 1 on; the cursor stands on the last.
inline clsDataSource SourceWithColumns(const QStringList &columnNames)
{
    clsDataSource source;
    source.GetDataMember();
    for (const QString &name : columnNames) {
        source.AddQuestion();
        source.Questions().Current() = {
            .Order = source.QuestionCount(), .ColumnName = name, .Id = source.IssueId()};
    }
    return source;
}

inline void AddItem(clsDataSource &source, int questionId, const QString &item)
{
    source.AddItem();
    source.Items().Current() = {.Id = questionId, .Item = item};
}

inline QStringList ShownItems(const clsDataSource &source)
{
    QStringList items;
    for (const ItemRow *row : source.Items().Shown())
        items.append(row->Item);
    return items;
}

} // namespace vellumo
