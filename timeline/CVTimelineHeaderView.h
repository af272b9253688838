#pragma once

#include "widgets/GradientBox.h"

class NSManagedObjectContext;

/// The strip above the rows of the timeline: their ticks go on in it, with the years and months
/// written between them.
///
/// It is as wide as the timeline and lies in a scroll area that shows a part of it. It asks the
/// store anew for each painting: whoever changes statements, the time zone or the width of the
/// timeline has it drawn again with update().
class CVTimelineHeaderView : public GradientBox
{
    Q_OBJECT

public:
    explicit CVTimelineHeaderView(QWidget* parent = nullptr);

    /// Without one, the strip is blank. The context must outlive the view or be taken away again.
    NSManagedObjectContext* managedObjectContext() const { return m_context; }
    void setManagedObjectContext(NSManagedObjectContext* context);

    /// The part that the widgets around it leave in view, whether or not they are shown by now.
    QRect visibleRect() const;

protected:
    void changeEvent(QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    NSManagedObjectContext* m_context = nullptr;
};
