// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

/** A label in whose text the host's number of pages is written. */
class TotalLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    /** Shows another text, with the number that stands in the former one. */
    void showText(const QString &text);
    /** Writes a number in place of the former one. @param formerTotal as a number; 0 at first */
    void showTotal(const QString &total, int formerTotal);
    /** Takes the number out of the text. */
    void clearTotal(int formerTotal);

private:
    QString m_givenText;
    QString m_total; ///< Empty while none is shown.
};
