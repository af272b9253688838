#pragma once

#include <QAbstractButton>

/// A quiet × that sends away what it stands in.
class DismissButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit DismissButton(QWidget* parent = nullptr);

    /// 24 by 24 points.
    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
