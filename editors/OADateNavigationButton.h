#pragma once

#include <QAbstractButton>

/// A quiet button above a month that turns to another one.
class OADateNavigationButton : public QAbstractButton
{
    Q_OBJECT

public:
    enum class Sign
    {
        Back,
        Dot,
        Forward,
    };

    /// Back and forward point against and along the direction of reading. The name is for the tool
    /// tip and for assistive programs.
    OADateNavigationButton(Sign sign, const QString& name, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Sign m_sign;
};
