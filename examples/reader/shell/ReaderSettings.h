// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "commands/RecentFiles.h"
#include "pages/PageLayout.h"

#include <QByteArray>
#include <QObject>
#include <QSettings>
#include <QStringList>

#include <memory>

/** Where a document was left. */
struct ReadingPlace
{
    int page = 0; ///< Counted from 0.
    QString zoom; ///< The name of a zoom mode.
};

/** The settings that the reader keeps between runs; all windows share them. */
class ReaderSettings : public QObject, public RecentFiles
{
    Q_OBJECT

public:
    /** Those of this process; they exist as long as somebody has them. */
    static std::shared_ptr<ReaderSettings> shared();

    /** From now on nothing is written: for a run that only makes a picture. */
    void keepNothing() { m_keeps = false; }
    /** Nothing is kept of this file. */
    void setPassing(const QString &fileName) { m_passing = fileName; }
    bool isKept(const QString &fileName) const override { return fileName != m_passing; }

    QStringList recentFiles() const override;
    void addRecentFile(const QString &fileName) override;
    void removeRecentFile(const QString &fileName) override;
    void clearRecentFiles() override;
    QString lastFolder() const override;

    int recentLimit() const override;
    void setRecentLimit(int limit) override;

    /** What the toolbar was like with that skin; empty on the first run. */
    QString toolBarState(const QString &skin) const;
    void setToolBarState(const QString &skin, const QString &state);

    /** How light the reader is; see ReaderScheme. Light on the first run. */
    QString scheme() const;
    void setScheme(const QString &scheme);
    /** Sets the scheme of this run only. */
    void useScheme(const QString &scheme);

    /** The language that the user has chosen; empty for that of the system. */
    QString language() const;
    void setLanguage(const QString &language);

    /** QWidget::saveGeometry() of the window that was closed last. */
    QByteArray geometry() const;
    void setGeometry(const QByteArray &geometry);

    /** How the pages were laid out in that window. */
    LayoutMode layoutMode() const;
    void setLayoutMode(LayoutMode mode);

    /** QMainWindow::saveState(), and the name of the panel that was shown. */
    QByteArray docks() const;
    QString panel() const;
    void setPanels(const QByteArray &docks, const QString &panel);

    /** Where the file was left; an empty zoom for an unknown one. */
    ReadingPlace place(const QString &fileName) const;
    /** Only the places of the files that were left last are kept. */
    void setPlace(const QString &fileName, const ReadingPlace &place);

Q_SIGNALS:
    void recentFilesChanged();
    void schemeChanged(const QString &scheme);

private:
    ReaderSettings();
    void store(const QString &key, const QVariant &value);
    void storeRecentFiles(const QStringList &files);

    QSettings m_settings;
    QString m_scheme; ///< Of this run; empty for the stored one.
    QString m_passing;
    bool m_keeps = true;
};
