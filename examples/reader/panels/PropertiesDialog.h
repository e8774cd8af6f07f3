// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

class Document;

/** The properties of the open document: its file, its size and the information in the file. */
class PropertiesDialog : public QDialog
{
    Q_OBJECT

public:
    PropertiesDialog(const Document &document, int currentPage, QWidget *parent = nullptr);
};
