#pragma once

#include <QAbstractButton>

/// A quiet round button with a "+" on it.
class AddButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit AddButton(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
