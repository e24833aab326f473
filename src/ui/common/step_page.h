#pragma once

#include "ui/common/link_label.h"

#include <QWidget>

#include <initializer_list>

namespace vellumo {

/// One of the four steps of the main window: what it asks of the window.
class StepPage : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

signals:
    void BackAsked();
    void NextAsked();
    /// The number of a page of the help.
    void HelpAsked(quint32 contextId);

protected:
    struct HelpLink {
        LinkLabel *label;
        quint32 contextId;
    };
    void ConnectHelp(std::initializer_list<HelpLink> links)
    {
        for (const HelpLink &link : links)
            connect(link.label, &LinkLabel::Followed, this,
                    [this, id = link.contextId] { emit HelpAsked(id); });
    }
};

} // namespace vellumo
