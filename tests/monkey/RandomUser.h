#pragma once

#include "tests/monkey/RandomSource.h"

#include <QPointer>
#include <QWidget>

class QMenu;

/** A user who does anything at any time. */
class RandomUser
{
public:
    explicit RandomUser(RandomSource &random);

    /** One gesture somewhere in the window; a description of it. */
    QString step(QWidget &window);

    /** One gesture at a menu or a list that is open; most often the one that closes it. */
    QString stepInPopup(QWidget &popup);

private:
    QWidget *anyWidget(const QWidget &window);
    QPoint anyPlace(const QWidget &widget);
    void click(QPointer<QWidget> widget);
    void drag(QPointer<QWidget> widget);
    void turnWheel(QWidget &widget);
    void hover(QWidget &widget);
    QString pressKey(QWidget &window);
    void type(QWidget &window);
    QString stepInMenu(QMenu &menu);

    RandomSource &m_random;
};
