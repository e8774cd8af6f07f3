// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/SignatureCheck.h"

#include <QDialog>

class QListWidget;
class QPushButton;
class QTextBrowser;

/** The signatures of a document: the result of the check of each, and its certificate. */
class SignatureDialog : public QDialog
{
    Q_OBJECT

public:
    /** Checks all signatures, which takes time for a large document. */
    explicit SignatureDialog(const Ofd::Document &document, QWidget *parent = nullptr);

    void showSignature(int signature);

Q_SIGNALS:
    /** The user wants to see the page, counted from 0, with the seal of the shown signature. */
    void pageChosen(int page);

private:
    void fillList();
    void showDetails(int signature);

    QVector<Ofd::SignatureResult> m_results;
    QVector<QList<int>> m_pages; ///< Those with the seal, for each signature.
    QListWidget *m_list;
    QTextBrowser *m_details;
    QPushButton *m_pageButton;
};
