#pragma once

#include <QLabel>

/// The quiet line of a form: what its figures mean, or what is wrong with them.
///
/// It always has the height of as many lines of text as it may show, so that the form keeps its
/// size while the text changes. A text that needs more is cut off, and stands whole in the tooltip.
class FormLine : public QLabel
{
    Q_OBJECT

public:
    explicit FormLine(QWidget* parent = nullptr);

    /// 1 at first.
    int lineCount() const { return m_lineCount; }
    void setLineCount(int count);

    /// What is seen of the text, with a line break between two lines.
    QString shownText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int m_lineCount = 1;
};
