// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTemporaryDir>

/** The document of the standard input, kept in a file as long as this exists. */
class StandardInput
{
public:
    /** Reads all of it; returns the path of the file, or sets @p error to one line. */
    QString save(QString *error);

private:
    QTemporaryDir m_folder;
};
