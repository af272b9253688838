#pragma once

#include <QPushButton>

/// A push button of forms and panels; the default one is in the colour of the selection.
class FormButton : public QPushButton
{
    Q_OBJECT

public:
    explicit FormButton(QWidget* parent = nullptr);

    /// 28 points high, or higher where the font needs it.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool isPrincipal() const;
    QFont titleFont() const;
};
