#pragma once

#include "ui/common/environment.h"

#include <QDialog>

#include <memory>

namespace vellumo {
namespace Ui {
class frmAbout;
}

/// Says which program this is, whose it is, and where to find its maker.
class frmAbout : public QDialog
{
    Q_OBJECT

public:
    explicit frmAbout(const Environment &environment, QWidget *parent = nullptr);
    ~frmAbout() override;

signals:
    /// F1 asked for help.
    void HelpAsked();

private:
    std::unique_ptr<Ui::frmAbout> ui;
};

} // namespace vellumo
