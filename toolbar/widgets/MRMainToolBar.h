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

private:
    bool m_filled = false;
};
