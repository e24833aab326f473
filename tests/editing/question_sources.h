#pragma once

#include "model/clsDataSource.h"

#include "support/print.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace vellumo {

/// A source with questions named q1, q2, ..., each a Pulldown List with the items "N a" and "N b";
/// the cursor stands on the first.
inline clsDataSource SourceWith(int count)
{
    clsDataSource source;
    source.GetDataMember();
    for (int n = 1; n <= count; ++n) {
        const QString name = QString::number(n);
        const int id = source.IssueId();
        source.Questions().Append({.Order = n,
                                   .Title = QStringLiteral("Title ") + name,
                                   .Question = QStringLiteral("Question ") + name,
                                   .Type = QStringLiteral("Pulldown List"),
                                   .ColumnName = QChar(u'q') + name,
                                   .Id = id});
        source.Items().Append({.Id = id, .Item = name + QStringLiteral(" a")});
        source.Items().Append({.Id = id, .Item = name + QStringLiteral(" b")});
    }
    source.MoveFirst();
    return source;
}

inline QStringList ColumnNames(const clsDataSource &source)
{
    QStringList names;
    for (const QuestionRow &row : source.Questions().Rows())
        names += row.ColumnName;
    return names;
}

inline QStringList ItemsOf(const clsDataSource &source, int id)
{
    QStringList items;
    for (const ItemRow &row : source.Items().Rows())
        if (row.Id == id)
            items += row.Item;
    return items;
}

inline void ExpectOrderWithoutGaps(const clsDataSource &source)
{
    int expected = 0;
    for (const QuestionRow &row : source.Questions().Rows())
        EXPECT_EQ(row.Order, ++expected);
}

inline QuestionRow &Current(clsDataSource &source)
{
    return source.Questions().Current();
}

} // namespace vellumo
