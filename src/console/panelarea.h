#pragma once

#include <QScrollArea>

/// A scroll area whose viewport and panel a form makes in their places. The form takes it for a
/// plain frame: a panel that is moved into a scroll area when it is complete is styled once more,
/// and makes the lists of its boxes then, of which the start would be a tenth slower.
class PanelArea : public QScrollArea
{
public:
    using QScrollArea::QScrollArea;

    /// Scrolls \a panel, a child of \a viewport, which is one of the area.
    void take(QWidget *viewport, QWidget *panel)
    {
        setViewport(viewport);
        setWidget(panel);
    }
};
