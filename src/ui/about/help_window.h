#pragma once

#include "help/reader/help_file.h"

#include <QTextDocument>
#include <QWidget>

#include <functional>
#include <memory>

class QTreeWidgetItem;

namespace vellumo {
namespace Ui {
class HelpWindow;
}

/// A window of its own that shows a help file: its contents, a page, a bar to find words on it.
/// It stays usable beside a modal owner.
class HelpWindow : public QWidget
{
    Q_OBJECT

public:
    /// openLink is given the web addresses that are followed.
    HelpWindow(HelpFile file, std::function<void(const QString &)> openLink, QWidget *owner);
    ~HelpWindow() override;

    QString FilePath() const { return m_file.Path(); }
    void ShowPage(const QString &page);

private:
    void SetActions();
    void FillContents();
    void ShareRoom();
    void ShowEntry(const QTreeWidgetItem *entry);
    void FollowLink(const QUrl &address);
    void TellPage(const QUrl &address);

    void OpenFindBar();
    void FindAgainFromHere();
    void FindNext(QTextDocument::FindFlags direction = {});
    void CloseBarOrWindow();

    std::unique_ptr<Ui::HelpWindow> ui;
    HelpFile m_file;
    std::function<void(const QString &)> m_openLink;
};

} // namespace vellumo
