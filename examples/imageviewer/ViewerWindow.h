// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "PictureView.h"

#include <toolbar/MRToolBarCommands.h>

#include <QMainWindow>
#include <QSettings>
#include <QTranslator>

class ViewerWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit ViewerWindow(const QString &fileName);

private:
    void addCommands();
    void open(const QString &fileName);
    void find(const SearchOption &option);
    bool isDark() const { return m_settings.value("dark").toBool(); }
    void setDark(bool isDark);
    void setEnglish(bool isEnglish);

    QSettings m_settings{"mrtoolbar", "imageviewer"};
    QTranslator m_english[2]; ///< Of the library; of this program with its description.
    bool m_isEnglish = false;
    PictureView *m_view = new PictureView;
    MRToolBarCommands m_commands{nullptr};
};
