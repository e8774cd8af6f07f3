// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "panels/TextWalk.h"

#include <QDialog>

class Document;
class QLabel;

/** The properties of the open document: its file, its size and the information in the file. */
class PropertiesDialog : public QDialog
{
    Q_OBJECT

public:
    PropertiesDialog(const Document &document, int currentPage, QWidget *parent = nullptr);

private:
    void countCharacters(const Document &document, QLabel *label);

    TextWalk m_walk;
};
