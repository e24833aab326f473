#pragma once

#include "ui/about/frmAbout.h"
#include "ui/about/help_window.h"
#include "ui/main/fileOpenForm.h"
#include "ui/main/logoForm.h"
#include "ui/questions/frmWizard.h"
#include "ui/questions/propertyForm.h"
#include "ui/support/designer.h"

namespace vellumo {

/// Lays everything out: layouts within layouts ask for one another's sizes turn by turn.
inline void SettleWindows()
{
    constexpr int turns = 8;
    for (int turn = 0; turn < turns; ++turn)
        QApplication::processEvents();
}

template <typename Show> void ShowProperties(ProjectDocument &document, const Show &show)
{
    for (const int row : {0, 2}) {
        document.source().SetPosition(row);
        propertyForm properties(document, nullptr);
        show(properties, "properties of question " + std::to_string(row));
    }
}

template <typename Show> void ShowWizard(ProjectDocument &document, const Show &show)
{
    using namespace Qt::StringLiterals;
    frmWizard wizard(document, nullptr);
    wizard.findChild<QListWidget *>(u"lstWiz1_1"_s)->setCurrentRow(2);
    wizard.findChild<QPlainTextEdit *>(u"txtWiz3_1"_s)->setPlainText(u"Which?"_s);
    for (int step = 1; step <= 5; ++step) {
        show(wizard, "wizard " + std::to_string(step));
        wizard.findChild<QAbstractButton *>(u"cmdNav_3"_s)->click();
    }
}

template <typename Show> void ShowStart(const Designer &designer, const Show &show)
{
    using namespace Qt::StringLiterals;
    Environment environment;
    environment.siteAddress = u"https://vellumo.example"_s;
    environment.version = u"1.1.2"_s;
    fileOpenForm chooser(designer.projects, [] {});
    show(chooser, "chooser");
    frmAbout about(environment);
    show(about, "about box");
    logoForm splash(environment, [](QWidget *) {});
    show(splash, "splash");
}

template <typename Show> void ShowHelp(const Show &show)
{
    auto file = HelpFile::Open(QStringLiteral(HELP_FILE));
    ASSERT_TRUE(file) << Describe(file.error()).toStdString();
    const QString page = file->DefaultPage();
    HelpWindow help(
        std::move(*file), [](const QString &) {}, nullptr);
    help.ShowPage(page);
    show(help, "help");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&help)); // or the key is nobody's
    QTest::keyClick(&help, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(help.findChild<QWidget *>(QStringLiteral("findBar"))->isVisible());
    show(help, "help with its find bar");
}

/// Shows the windows of the designer one after the other, each of their steps, and calls the
/// function with each while it is up. Each is gone before the next comes: what is modal would keep
/// the keys from it. HELP_FILE has to name the help file.
template <typename Look> void ShowEveryWindow(const Look &look)
{
    using namespace Qt::StringLiterals;
    Designer designer(DataFile(u"projects/SiteVisit.vmp"_s));
    auto &document = const_cast<ProjectDocument &>(designer.window.document());
    const auto show = [&look](QWidget &window, const std::string &what) {
        SCOPED_TRACE(what);
        window.show();
        QApplication::setActiveWindow(&window);
        SettleWindows();
        look(window);
    };
    for (int step = 1; step <= 4; ++step) {
        designer.Find<QTabWidget>("SSTab1")->setCurrentIndex(step - 1);
        show(designer.window, "step " + std::to_string(step));
    }
    ShowProperties(document, show);
    ShowWizard(document, show);
    ShowStart(designer, show);
    ShowHelp(show);
}

} // namespace vellumo
