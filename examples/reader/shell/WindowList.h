// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "shell/Options.h"

#include <QDomDocument>
#include <QObject>

#include <memory>

class ReaderSettings;
class ReaderWindow;

/** Makes the windows of the program, one for each file. A window deletes itself when it closes. */
class WindowList : public QObject
{
    Q_OBJECT

public:
    /** @param description The toolbar of every window. */
    WindowList(const QDomDocument &description, const Options &options);
    ~WindowList() override;

    /** A new window, which is not shown yet. */
    ReaderWindow *create();
    /**
     * Opens each file in a window without a document, or in a new one; raises the window of a file
     * that is open already. Without a file a window without a document is shown.
     *
     * @param asked The window where the user has asked for it; null for the command line.
     */
    void open(const QStringList &fileNames, ReaderWindow *asked = nullptr);

private:
    void openOne(const QString &fileName, ReaderWindow *asked);
    ReaderWindow *freeWindow(ReaderWindow *asked) const;

    const QDomDocument m_description;
    const Options m_options;
    std::shared_ptr<ReaderSettings> m_settings;
};
