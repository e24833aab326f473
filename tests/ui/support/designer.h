#pragma once

#include "model/project_file.h"
#include "support/files.h"
#include "ui/common/pictures.h"
#include "ui/main/appInfoForm.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTest>
#include <gtest/gtest.h>

#include <qtestspontaneevent.h>

namespace vellumo {

inline const QString sample = DataFile(QStringLiteral("projects/SiteVisit.vmp"));

/// The designer's window on screen, in folders of its own, and the hands of a user. Controls are
/// found by objectName.
class Designer
{
public:
    Designer() : Designer(QString()) {}

    /// Opens the project as one that was named at the start.
    explicit Designer(const QString &projectPath) : Designer(projectPath, {}, {}) {}

    /// Leaves rescue copies in the state folder.
    Designer(const QString &projectPath, const QString &stateFolder,
             std::chrono::milliseconds rescueDelay)
        : application(MakeFolder(QStringLiteral("app"))),
          projects(MakeFolder(QStringLiteral("docs"))),
          window(Surroundings(stateFolder, rescueDelay))
    {
        if (!projectPath.isEmpty())
            window.OpenProject(projectPath);
        window.FinishSetUp();
        window.show();
        Activate();
    }

    /// Makes the window the active one, as a window manager does when a dialog went away.
    void Activate() const
    {
        QApplication::processEvents();
        if (QApplication::activeModalWidget() || window.isActiveWindow())
            return;
        QApplication::setActiveWindow(const_cast<appInfoForm *>(&window));
        EXPECT_TRUE(QTest::qWaitForWindowActive(const_cast<appInfoForm *>(&window)));
    }

    template <typename Control> Control *Find(const char *name) const
    {
        auto *control = window.findChild<Control *>(QString::fromLatin1(name));
        if (!control)
            throw std::logic_error(std::string("no control ") + name);
        return control;
    }

    void Click(const char *button) const
    {
        QTest::mouseClick(Find<QAbstractButton>(button), Qt::LeftButton);
        Activate();
    }
    void Type(const char *box, const QString &text) const
    {
        QTest::keyClicks(Find<QWidget>(box), text);
    }
    void Choose(const char *action) const { Find<QAction>(action)->trigger(); }

    QString Text(const char *box) const { return Find<QLineEdit>(box)->text(); }

    int Step() const { return Find<QTabWidget>("SSTab1")->currentIndex() + 1; }
    void ClickTab(int step) const
    {
        auto *bar = Find<QTabWidget>("SSTab1")->tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(step - 1).center());
    }
    /// Number of the picture on a step's tab.
    int Mark(int step) const
    {
        return Find<QTabWidget>("SSTab1")->tabBar()->tabData(step - 1).toInt();
    }
    bool HasFocus(const char *name) const
    {
        return QApplication::focusWidget() == Find<QWidget>(name);
    }

    /// As the title bar does it; whether the window went away.
    bool CloseByTitleBar()
    {
        QCloseEvent event;
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(&window, &event); // sendEvent() would call it the program's own
        return event.isAccepted();
    }

    const Project &project() const { return window.document().project(); }
    bool ProjectChanged() const { return window.document().ProjectChanged(); }

    QTemporaryDir folder;
    QString application; ///< folders, without a separator at their ends
    QString projects;
    QStringList opened; ///< with the platform's default action
    std::function<ToolRun(const ToolCall &call)> runTool;
    appInfoForm window;

private:
    QString MakeFolder(const QString &name) const
    {
        QDir(folder.path()).mkdir(name);
        return folder.filePath(name);
    }

    Environment Surroundings(const QString &stateFolder, std::chrono::milliseconds rescueDelay)
    {
        return {.applicationFolder = application,
                .projectsFolder = projects + QLatin1Char('/'),
                .helpFile = {},
                .siteAddress = QStringLiteral("https://vellumo.example"),
                .version = QStringLiteral("1.1.2"),
                .stateFolder = stateFolder,
                .rescueDelay = rescueDelay,
                .makeIdentifier =
                    [] { return QStringLiteral("{00112233-4455-6677-8899-AABBCCDDEEFF}"); },
                .runTool = [this](const ToolCall &call) { return runTool(call); },
                .open = [this](const QString &target) { opened += target; }};
    }
};

} // namespace vellumo
