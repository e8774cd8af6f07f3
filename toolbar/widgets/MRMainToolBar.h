#pragma once

#include <QToolBar>

/** The tool row of one tab. It knows whether its controls have been made yet. */
class MRMainToolBar : public QToolBar
{
    Q_OBJECT

public:
    explicit MRMainToolBar(QWidget *parent = nullptr);

    bool isFilled() const { return m_filled; }
    void setFilled(bool filled) { m_filled = filled; }

    /** Nothing for a row that is not filled yet: its parts are styled when it is opened. */
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    bool m_filled = false;
};
