// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QComboBox>

class Document;

/** The documents of a file that contains several; hidden for any other file. */
class BodyChooser : public QComboBox
{
    Q_OBJECT

public:
    explicit BodyChooser(const Document &document, QWidget *parent = nullptr);

    /** Shows which document is open, also if another one was chosen and could not be opened. */
    void refresh();

Q_SIGNALS:
    void bodyChosen(int body);

private:
    const Document &m_document;
};
