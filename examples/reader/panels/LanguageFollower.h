// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <functional>

class QWidget;

/** Shows the texts of a widget, and again in every other language that is chosen. */
class LanguageFollower : public QObject
{
public:
    /** Calls @p showTexts now, and after every change of the language. @param widget owns it */
    static void attach(QWidget *widget, const std::function<void()> &showTexts);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    LanguageFollower(QWidget *widget, const std::function<void()> &showTexts);

    std::function<void()> m_showTexts;
};
