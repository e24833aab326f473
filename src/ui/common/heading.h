#pragma once

#include <QLabel>

namespace vellumo {

/// A heading: bold, five points larger than the text of the desktop whatever its size, and on more
/// lines than one where it has to be.
class Heading : public QLabel
{
    Q_OBJECT

public:
    explicit Heading(QWidget *parent = nullptr);

protected:
    bool event(QEvent *event) override;

private:
    void FollowText();
};

} // namespace vellumo
