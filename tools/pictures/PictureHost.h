#pragma once

#include <toolbar/MRToolBar.h>

#include <QDir>
#include <QDomDocument>
#include <QMainWindow>

#include <functional>

class QAbstractButton;
class QMenu;

/**
 * A host whose only document is empty: it lives through everything that a toolbar can show and
 * takes a picture of each.
 */
class PictureHost
{
public:
    /** @param prefix begins the name of every picture's file */
    PictureHost(const QDomDocument &description, const QDir &folder, const QString &prefix,
                int width);

    /** Takes all pictures; false if one could not be written. */
    bool takeAll();

private:
    void answerAuthority();
    void takeTabs();
    void restPointer();
    void takeStates();
    void takeMenus();
    void takeMenuOf(QAbstractButton *button, const QString &name);
    void takeSubMenus(QMenu *menu, const QString &name);
    void take(const QString &name);

    QDomDocument m_description;
    QDir m_folder;
    QString m_prefix;
    QMainWindow m_window;
    MRToolBar *m_toolBar;
    bool m_isComplete = true;
};
