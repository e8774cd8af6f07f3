// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

class Document;

/** What is known of the open document: its file, its size and what its author says of it. */
class PropertiesDialog : public QDialog
{
    Q_OBJECT

public:
    PropertiesDialog(const Document &document, int currentPage, QWidget *parent = nullptr);
};
