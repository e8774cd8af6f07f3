// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "commands/ReaderParts.h"
#include "document/PageLink.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <memory>

/** What links and attached files do. The user is asked before anything leaves the reader. */
class LinkCommands
{
    Q_DECLARE_TR_FUNCTIONS(LinkCommands)

public:
    explicit LinkCommands(const ReaderParts &parts);

    void follow(const PageLink &link);
    void showMark(int id);
    /** Hands the file to the desktop, unless it is a program. */
    void openAttachment(int index);
    void saveAttachment(int index);

private:
    void openAddress(const QString &address);
    bool mayOpen(const QString &question) const;
    /** The content of the file; after a failure nothing, and the user was told. */
    std::optional<QByteArray> contentOf(int index) const;
    /** A copy that is removed with the reader; empty on failure. */
    QString temporaryCopy(int index, const QString &name, const QByteArray &content);

    ReaderParts m_parts;
    std::unique_ptr<QTemporaryDir> m_folder;
};
