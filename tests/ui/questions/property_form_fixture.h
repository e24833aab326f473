#pragma once

#include "ui/questions/propertyForm.h"

#include "model/clsDataSource.h"
#include "support/print.h"
#include "ui/common/project_document.h"
#include "ui/support/prompt_script.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace vellumo {

inline const QString pulldown = QStringLiteral("Pulldown List");

/// A project whose second question is open in the form: Kind, a pulldown list of a, b and c.
class PropertyFormTest : public testing::Test
{
protected:
    PropertyFormTest()
    {
        Append({.Order = 1,
                .Title = QStringLiteral("Old"),
                .Type = QStringLiteral("Text"),
                .ColumnName = QStringLiteral("Age"),
                .Id = 3},
               {QStringLiteral("stray")});
        Append({.Order = 2,
                .Title = QStringLiteral("Kind"),
                .Question = QStringLiteral("Which kind?"),
                .Type = QStringLiteral("Pulldown List"),
                .ColumnName = QStringLiteral("Kind"),
                .Id = 7},
               {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    }

    void Append(const QuestionRow &row, const QStringList &items)
    {
        Questions().Append(row);
        for (const QString &item : items)
            document.source().Items().Append({.Id = row.Id, .Item = item});
    }

    Table<QuestionRow> &Questions() { return document.source().Questions(); }
    const QuestionRow &Row() { return Questions().Current(); }
    QStringList StoredItems() { return document.source().ItemsOf(Row().Id); }

    void Open()
    {
        form = std::make_unique<propertyForm>(document);
        form->show();
        form->activateWindow(); // nobody else does where no window manager runs
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }

    template <typename Control> Control *The(const char *name)
    {
        auto *control = form->findChild<Control *>(QString::fromLatin1(name));
        EXPECT_NE(control, nullptr) << name;
        return control;
    }
    QString Text(const char *name) { return The<QLineEdit>(name)->text(); }
    void Enter(const char *name, const QString &text) { The<QLineEdit>(name)->setText(text); }
    void Click(const char *name) { QTest::mouseClick(The<QPushButton>(name), Qt::LeftButton); }

    QPlainTextEdit *Question() { return The<QPlainTextEdit>("txtQuestion"); }

    /// Picks a type by the arrow keys.
    void PickType(const QString &type)
    {
        auto *types = The<QComboBox>("cboType");
        QTest::keyClick(types, Qt::Key_Home);
        while (types->currentText() != type && types->currentIndex() + 1 < types->count())
            QTest::keyClick(types, Qt::Key_Down);
        EXPECT_EQ(types->currentText(), type);
    }

    QStringList ShownItems()
    {
        QStringList texts;
        const QAbstractItemModel *model = The<QListView>("lstSelection")->model();
        for (int row = 0; row < model->rowCount(); ++row)
            texts += model->index(row, 0).data().toString();
        return texts;
    }

    /// The one box that pressing OK shows.
    QString Objections()
    {
        const PromptScript prompts({QStringLiteral("OK")});
        Click("cmdOK");
        EXPECT_EQ(prompts.boxes().size(), 1u);
        if (prompts.boxes().empty())
            return {};
        EXPECT_EQ(prompts.boxes()[0].title, QStringLiteral("Vellumo Designer"));
        EXPECT_EQ(prompts.boxes()[0].icon, QMessageBox::Warning);
        EXPECT_TRUE(form->isVisible());
        EXPECT_FALSE(document.ProjectChanged());
        return prompts.boxes()[0].text;
    }

    void ExpectAccepted()
    {
        const PromptScript prompts;
        Click("cmdOK");
        EXPECT_TRUE(prompts.boxes().empty());
        EXPECT_FALSE(form->isVisible());
        EXPECT_EQ(form->result(), QDialog::Accepted);
        EXPECT_TRUE(document.ProjectChanged());
    }

    ProjectDocument document;
    std::unique_ptr<propertyForm> form;
};

} // namespace vellumo
