// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/fields/RecentFiles.h"

#include "toolbar/description/Names.h"
#include "toolbar/widgets/BatchMenu.h"
#include "toolbar/widgets/HostAnswer.h"
#include "toolbar/widgets/ToolTipCard.h"

#include <QAction>
#include <QFileInfo>
#include <QIcon>

#include <algorithm>

namespace {

/** Where an entry keeps the path that the host gets: a tooltip may be a card. */
constexpr char absolutePathProperty[] = "absolutepath";

/** Whether an entry bears that name, plain or as a menu's way to the command of that name. */
bool isCommand(const QString &name, QLatin1String command)
{
    return name == command || name == QString(Prefix::menu + command);
}

QString absolutePathOf(const QAction *entry)
{
    return entry->property(absolutePathProperty).toString();
}

/** Undoes what a host may have done with an entry while it showed another file. */
void makeAnew(QAction *entry)
{
    entry->disconnect();
    entry->setEnabled(true);
    entry->setVisible(true);
    entry->setChecked(false);
    entry->setCheckable(false);
    entry->setIcon(QIcon());
    entry->setIconVisibleInMenu(true);
}

} // namespace

RecentFiles::RecentFiles(QObject *owner)
    : m_owner(owner)
{
}

bool RecentFiles::isMenuName(const QString &name)
{
    return isCommand(name, Name::recentFiles);
}

bool RecentFiles::isClearName(const QString &name)
{
    return isCommand(name, Name::clearHistory);
}

QMenu *RecentFiles::createMenu(QWidget *parent)
{
    m_menu = new BatchMenu(parent);
    return m_menu;
}

const QMenu *RecentFiles::menu() const
{
    return m_menu;
}

void RecentFiles::show(const QStringList &paths)
{
    if (!hasOwnEntries())
        return;

    const BatchMenu::Changes changes(m_menu);
    const QList<File> files = describe(paths);
    if (!isShowing(files))
        fill(files);
    showOwnEntries(!files.isEmpty());
}

QList<RecentFiles::File> RecentFiles::describe(const QStringList &paths)
{
    QList<File> files;
    for (const QString &path : paths)
        files.append({textOf(files.size(), path), path, QFileInfo(path).absoluteFilePath()});
    return files;
}

QString RecentFiles::textOf(qsizetype position, const QString &path)
{
    return QObject::tr("&%1 %2").arg(QString::number(position + 1), QFileInfo(path).fileName());
}

void RecentFiles::retranslate()
{
    if (!hasOwnEntries())
        return;

    const BatchMenu::Changes changes(m_menu);
    const QList<QAction *> entries = shownEntries();
    for (qsizetype i = 0; i < entries.size(); ++i) {
        if (entries.at(i)->objectName() == Name::recentFile)
            entries.at(i)->setText(textOf(i, entries.at(i)->data().toString()));
    }
}

bool RecentFiles::hasOwnEntries() const
{
    const QList<QAction *> actions = m_menu ? m_menu->actions() : QList<QAction *>();
    return actions.size() >= 2 && actions.first()->objectName() == Name::noFile
           && actions.last()->objectName().contains(Name::clearHistory);
}

QList<QAction *> RecentFiles::shownEntries() const
{
    const QList<QAction *> actions = m_menu->actions();
    return actions.mid(1, std::max<qsizetype>(actions.size() - 2, 0));
}

bool RecentFiles::isShowing(const QList<File> &files) const
{
    const QList<QAction *> entries = shownEntries();
    return std::equal(
        entries.begin(), entries.end(), files.begin(), files.end(),
        [](const QAction *entry, const File &file) { return isShowing(entry, file); });
}

bool RecentFiles::isShowing(const QAction *entry, const File &file)
{
    return entry->text() == file.text && entry->data().toString() == file.path
           && absolutePathOf(entry) == file.absolutePath;
}

void RecentFiles::fill(const QList<File> &files)
{
    takeEntriesOut();
    QAction *last = m_menu->actions().last();
    for (qsizetype i = 0; i < files.size(); ++i) {
        const File &file = files.at(i);
        QAction *entry = newEntry(i);
        entry->setText(file.text);
        entry->setData(file.path);
        entry->setProperty(absolutePathProperty, file.absolutePath);
        entry->setToolTip(toolTipCard(file.absolutePath));
        m_menu->insertAction(last, entry);
    }
}

void RecentFiles::takeEntriesOut()
{
    const QList<QAction *> entries = shownEntries();
    std::for_each(entries.rbegin(), entries.rend(),
                  [this](QAction *entry) { m_menu->removeAction(entry); });
}

void RecentFiles::showOwnEntries(bool hasFiles)
{
    const QList<QAction *> actions = m_menu->actions();
    actions.first()->setVisible(!hasFiles);
    actions.last()->setEnabled(hasFiles);
    actions.last()->setVisible(hasFiles);
}

QAction *RecentFiles::newEntry(qsizetype position)
{
    if (position == m_entries.size())
        m_entries.append(nullptr);
    QPointer<QAction> &entry = m_entries[position];
    if (!entry) {
        entry = new QAction(m_owner);
        entry->setObjectName(Name::recentFile);
    }
    makeAnew(entry);
    return entry;
}

void RecentFiles::choose(QAction *entry)
{
    if (!entry)
        return;

    const HostAnswer answer;
    const QString name = entry->objectName();
    if (name == Name::recentFile)
        open(entry);
    else if (isClearName(name))
        clear(name);
}

void RecentFiles::open(QAction *entry)
{
    // In its answer the host may report another list; those who hear of the choice after it are
    // still to find what was chosen.
    m_entries.removeOne(entry);
    const QPointer<RecentFiles> self(this);
    const QPointer<QAction> chosen(entry);
    Q_EMIT openFile(absolutePathOf(entry));
    if (self && chosen && !m_entries.contains(chosen))
        m_entries.append(chosen);
}

void RecentFiles::clear(const QString &entryName)
{
    const QPointer<RecentFiles> self(this);
    Q_EMIT clearing(entryName);
    if (!self || !m_menu || m_menu->actions().isEmpty())
        return;

    const BatchMenu::Changes changes(m_menu);
    takeEntriesOut();
    showOwnEntries(false);
}
