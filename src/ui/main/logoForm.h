#pragma once

#include <QDialog>

#include <functional>
#include <memory>

namespace vellumo {

struct Environment;

namespace Ui {
class logoForm;
}

/// The picture shown while the program starts. After the time that the
/// environment gives it, counted from when it is shown, it
/// makes one check and closes once that has returned; it cannot be closed before, by any means.
class logoForm : public QDialog
{
    Q_OBJECT

public:
    /// What is run before closing; it may handle events, and show boxes over the given window.
    using Check = std::function<void(QWidget *parent)>;

    logoForm(const Environment &environment, Check check, QWidget *parent = nullptr);
    ~logoForm() override;

    void reject() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void CheckAndClose();

    std::unique_ptr<Ui::logoForm> ui;
    Check m_check;
    QTimer *m_timer;
};

} // namespace vellumo
