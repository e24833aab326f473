#include "ui/about/help_window.h"

#include "ui/common/desktop_manners.h"
#include "ui/common/focus_ring.h"
#include "ui/common/screen_centre.h"
#include "ui_help_window.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTreeWidgetItemIterator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vellumo {
namespace {

constexpr int pageRole = Qt::UserRole;

} // namespace

HelpWindow::HelpWindow(HelpFile file, std::function<void(const QString &)> openLink, QWidget *owner)
    : QWidget(owner, Qt::Window),
      ui(std::make_unique<Ui::HelpWindow>()),
      m_file(std::move(file)),
      m_openLink(std::move(openLink))
{
    ui->setupUi(this);
    ui->splitter->setStretchFactor(1, 1);
    RingWhenFocused(ui->txtPage);
    ui->findBar->hide();
    ui->txtPage->SetFile(m_file);
    SetActions();
    FillContents();
    FollowDesktop(*this);
    CentreOnScreen(*this);
    ShareRoom();

    // Not the change of the current entry: TellPage makes it current. Whether a click activates is
    // the style's choice, Enter always does.
    connect(ui->treContents, &QTreeWidget::itemClicked, this, &HelpWindow::ShowEntry);
    connect(ui->treContents, &QTreeWidget::itemActivated, this, &HelpWindow::ShowEntry);
    connect(ui->txtPage, &HelpBrowser::anchorClicked, this, &HelpWindow::FollowLink);
    connect(ui->txtPage, &HelpBrowser::sourceChanged, this, &HelpWindow::TellPage);
    connect(ui->txtFind, &QLineEdit::textEdited, this, &HelpWindow::FindAgainFromHere);
    connect(ui->txtFind, &QLineEdit::returnPressed, this, [this] { FindNext(); });
}

HelpWindow::~HelpWindow() = default;

void HelpWindow::ShowPage(const QString &page)
{
    ui->txtPage->ShowPage(page);
    ui->txtPage->setFocus();
}

void HelpWindow::SetActions()
{
    ui->actBack->setEnabled(false);
    ui->actForward->setEnabled(false);
    ui->cmdBack->setDefaultAction(ui->actBack);
    ui->cmdForward->setDefaultAction(ui->actForward);
    ui->cmdHome->setDefaultAction(ui->actHome);
    ui->cmdFind->setDefaultAction(ui->actFind);
    ui->cmdFindNext->setDefaultAction(ui->actFindNext);
    ui->cmdFindPrevious->setDefaultAction(ui->actFindPrevious);

    const HelpBrowser *page = ui->txtPage;
    connect(page, &HelpBrowser::backwardAvailable, ui->actBack, &QAction::setEnabled);
    connect(page, &HelpBrowser::forwardAvailable, ui->actForward, &QAction::setEnabled);
    connect(ui->actBack, &QAction::triggered, page, &HelpBrowser::backward);
    connect(ui->actForward, &QAction::triggered, page, &HelpBrowser::forward);
    connect(ui->actHome, &QAction::triggered, this, [this] { ShowPage(m_file.DefaultPage()); });
    connect(ui->actFind, &QAction::triggered, this, &HelpWindow::OpenFindBar);
    connect(ui->actFindNext, &QAction::triggered, this, [this] { FindNext(); });
    connect(ui->actFindPrevious, &QAction::triggered, this,
            [this] { FindNext(QTextDocument::FindBackward); });
    connect(ui->actClose, &QAction::triggered, this, &HelpWindow::CloseBarOrWindow);
}

void HelpWindow::FillContents()
{
    QList<QTreeWidgetItem *> above{ui->treContents->invisibleRootItem()};
    for (const ContentsEntry &entry : m_file.Contents()) {
        above.resize(entry.level + 1); // no line is more than one level below that before it
        auto *item = new QTreeWidgetItem(above.last(), {entry.title});
        item->setData(0, pageRole, entry.page);
        above += item;
    }
    ui->treContents->expandAll();
    // As wide as its entries are, which otherwise end in dots; the tree has a scroll bar.
    ui->treContents->header()->setStretchLastSection(false);
    ui->treContents->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    ui->treContents->setVisible(!m_file.Contents().empty());
}

/// The contents get what they need, up to two fifths of the window.
void HelpWindow::ShareRoom()
{
    const QTreeWidget &contents = *ui->treContents;
    const int needed = contents.header()->length() +
                       contents.verticalScrollBar()->sizeHint().width() + 2 * contents.frameWidth();
    const int given = std::min(needed, width() * 2 / 5);
    ui->splitter->setSizes({given, width() - given});
}

void HelpWindow::ShowEntry(const QTreeWidgetItem *entry)
{
    const QString page = entry->data(0, pageRole).toString();
    if (!page.isEmpty()) // as a heading's is
        ui->txtPage->ShowPage(page);
}

void HelpWindow::FollowLink(const QUrl &address)
{
    const QString page = HelpBrowser::NameIn(address);
    if (!page.isEmpty())
        ui->txtPage->setSource(address);
    // Anybody's help file may be shown: no file, program or mail is opened from it.
    else if (address.scheme() == u"https" || address.scheme() == u"http")
        m_openLink(address.toString());
}

/// Names the page in the window's title and in the contents.
void HelpWindow::TellPage(const QUrl &address)
{
    const QString page = HelpBrowser::NameIn(address);
    setWindowTitle(u"%1 - %2"_s.arg(m_file.TitleOf(page), m_file.Title()));
    for (QTreeWidgetItemIterator item(ui->treContents); *item; ++item)
        if ((*item)->data(0, pageRole).toString().section(u'#', 0, 0) == page)
            return ui->treContents->setCurrentItem(*item);
    ui->treContents->setCurrentItem(nullptr);
}

void HelpWindow::OpenFindBar()
{
    ui->findBar->show();
    ui->txtFind->setFocus();
    ui->txtFind->selectAll();
}

/// What is found already may be the beginning of the longer text.
void HelpWindow::FindAgainFromHere()
{
    QTextCursor cursor = ui->txtPage->textCursor();
    cursor.setPosition(cursor.selectionStart());
    ui->txtPage->setTextCursor(cursor);
    FindNext();
}

/// Goes on at the other end of the page when there is nothing more.
void HelpWindow::FindNext(QTextDocument::FindFlags direction)
{
    const QString text = ui->txtFind->text();
    if (text.isEmpty())
        return OpenFindBar();
    bool found = ui->txtPage->find(text, direction);
    if (!found) {
        const QTextCursor before = ui->txtPage->textCursor();
        ui->txtPage->moveCursor(direction & QTextDocument::FindBackward ? QTextCursor::End
                                                                        : QTextCursor::Start);
        found = ui->txtPage->find(text, direction);
        if (!found)
            ui->txtPage->setTextCursor(before);
    }
    ui->lblFound->setText(found ? QString() : tr("Not on this page"));
}

void HelpWindow::CloseBarOrWindow()
{
    if (ui->findBar->isHidden()) {
        close();
        return;
    }
    ui->findBar->hide();
    ui->txtPage->setFocus();
}

} // namespace vellumo
