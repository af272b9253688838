#pragma once

#include <QLabel>

/// A one-line label whose text looks pressed into the panel that it stands on.
class LetterpressLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override;
};
