#pragma once

#include "editing/wizard_rules.h"

#include <QDialog>

#include <memory>

class QPushButton;

namespace vellumo {

class ProjectDocument;

namespace Ui {
class frmWizard;
}

/// Leads in five steps to a new question: type, title, column name, question text and, for the
/// types that have them, items. It appends the question to the document's project and can make
/// several in a row.
class frmWizard : public QDialog
{
    Q_OBJECT

public:
    /// The document must outlive the wizard, and hold fewer than 128 questions.
    explicit frmWizard(ProjectDocument &document, QWidget *parent = nullptr);
    ~frmWizard() override;

signals:
    /// Help was asked for, by a link or F1; contextId is the number of a help topic.
    void HelpAsked(quint32 contextId);

protected:
    void changeEvent(QEvent *event) override;

private:
    void OfferTitles();
    void ConfigureTitleBox();
    void ConnectControls();
    void PlaceTypeLink();

    void ShowStep();
    void ShowPanel();
    void ProposeColumnName();
    void ShowItemsForType();
    void EnableButtons();

    void GoBack();
    void GoNext();
    void Finish();
    void Append(const Question &question);
    void StartAnother();

    Question Entered() const;
    void ShowTrimmed(const Question &entered);
    /// What step 2, 3, 4 or 5 asks for; on step 1 the list of types.
    QWidget *Input() const;

    std::unique_ptr<Ui::frmWizard> ui;
    ProjectDocument &m_document;
    int m_step = 1;
};

} // namespace vellumo
