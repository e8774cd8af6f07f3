// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class BatchMenu;
class QAction;
class QMenu;

/**
 * The list of recent files, in a menu of the description: its entries stand between the first entry
 * of the menu, which is shown while there are none, and the last one, which clears the list.
 *
 * An entry that is taken out of the menu is used again for the next list. So there are as many as
 * the longest list had.
 */
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    /** @param owner becomes the parent of the entries, which outlive the list in the menu */
    explicit RecentFiles(QObject *owner);

    /** Whether a menu of that name is for the list. */
    static bool isMenuName(const QString &name);
    /** Whether an entry of that name clears the list. */
    static bool isClearName(const QString &name);

    /** Makes the menu for the list from now on. */
    QMenu *createMenu(QWidget *parent);
    const QMenu *menu() const;

    /**
     * Shows these files, in this order. Nothing happens while the menu lacks one of its own two
     * entries, or if the list is the one on show.
     */
    void show(const QStringList &paths);

    /** Shows the list in the language of now. */
    void retranslate();

    /** Does what a chosen entry of the menu is for. The list may be gone on return. */
    void choose(QAction *entry);

Q_SIGNALS:
    /** A file was chosen; the path is absolute. */
    void openFile(QString path);
    /** The list is about to be cleared, by the entry of this name. */
    void clearing(QString entryName);

private:
    /** What an entry tells of a file. */
    struct File
    {
        QString text;
        QString path;
        QString absolutePath;
    };

    static QString textOf(qsizetype position, const QString &path);
    static QList<File> describe(const QStringList &paths);
    static bool isShowing(const QAction *entry, const File &file);
    bool hasOwnEntries() const;
    QList<QAction *> shownEntries() const;
    bool isShowing(const QList<File> &files) const;
    void fill(const QList<File> &files);
    void takeEntriesOut();
    void showOwnEntries(bool hasFiles);
    QAction *newEntry(qsizetype position);
    void open(QAction *entry);
    void clear(const QString &entryName);

    QObject *m_owner;
    QPointer<BatchMenu> m_menu;
    QList<QPointer<QAction>> m_entries; ///< All that may be used, in the menu or not.
};
