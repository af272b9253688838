#pragma once

#include <QAbstractButton>

/// The small calendar in a date field. Pressing it leaves the focus where it is.
class OADatePickerButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit OADatePickerButton(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
