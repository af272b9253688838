#pragma once

#include <QPixmap>
#include <QVariantAnimation>
#include <QWidget>

/// Lets something appear in a window softly: lies over its place and fades from a picture of the
/// window before to a picture of it after. What is below is complete already and takes keys and
/// the mouse, but need not be painted until the end.
class PopoverAppearance : public QWidget
{
    Q_OBJECT

public:
    /// Of the same size, in points, as the widget is to be.
    struct Pictures
    {
        QPixmap before;
        QPixmap after;
    };

    /// Begins at once.
    PopoverAppearance(QWidget& window, Pictures pictures, int durationInMilliseconds);

Q_SIGNALS:
    void finished();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Pictures m_pictures;
    QVariantAnimation m_opacity;
};
