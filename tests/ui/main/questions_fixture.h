#pragma once

#include "support/print.h"
#include "ui/support/designer.h"
#include "ui/support/prompt_script.h"

#include <QLabel>
#include <QTableView>

namespace vellumo {

/// A project file with questions q1, q2, ... of a type, each with some items.
inline QString ProjectFile(const QTemporaryDir &folder, int questions,
                           const QString &type = QStringLiteral("Text"), int items = 0)
{
    Project project{.FormName = QStringLiteral("Survey"), .FormPath = QStringLiteral("C:\\Data")};
    for (int n = 1; n <= questions; ++n) {
        const int id = project.source.IssueId();
        const QString number = QString::number(n);
        project.source.Questions().Append({n, QStringLiteral("Title ") + number,
                                           QStringLiteral("Question ") + number, type,
                                           QChar(u'q') + number, id});
        for (int item = 1; item <= items; ++item)
            project.source.Items().Append({id, number + u'.' + QString::number(item)});
    }
    QString path = folder.filePath(QStringLiteral("survey.vmp"));
    EXPECT_TRUE(SaveProject(project, path));
    return path;
}

/// The designer on step 2 of such a project, with the question of a row clicked.
class Questions : public Designer
{
public:
    explicit Questions(int questions, int row = 0, const QString &type = QStringLiteral("Text"),
                       int items = 0)
        : Designer(ProjectFile(m_files, questions, type, items))
    {
        ClickTab(2);
        if (questions > 0)
            ClickRow(row);
    }

    QTableView *Grid() const { return Find<QTableView>("DataGrid1"); }
    void ClickRow(int row) const
    {
        Grid()->scrollTo(Grid()->model()->index(row, 1));
        const QPoint place = Grid()->visualRect(Grid()->model()->index(row, 1)).center();
        QTest::mouseClick(Grid()->viewport(), Qt::LeftButton, {}, place);
    }
    int Row() const { return Grid()->currentIndex().row(); }
    QStringList ColumnNames() const
    {
        QStringList names;
        for (int row = 0; row < Grid()->model()->rowCount(); ++row)
            names += Grid()->model()->index(row, 4).data().toString();
        return names;
    }
    QString Caption(const char *label) const { return Find<QLabel>(label)->text(); }

private:
    inline static QTemporaryDir m_files;
};

inline const QString reallyDelete =
    QStringLiteral("Are you sure you want to delete this question?");
inline const QString reallyDuplicate =
    QStringLiteral("Are you sure you want to duplicate this question?");

} // namespace vellumo
