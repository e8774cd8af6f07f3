// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

#include <optional>

/** A label whose text may hold the number of pages, in the middle of what is described. */
class TotalLabel : public QLabel
{
public:
    using QLabel::QLabel;

    /** Shows another described text, with the total in it. The same text changes nothing. */
    void describe(const QString &text);

    /** Shows a total in place of the old one, which the label holds or has room for. */
    void showTotal(int oldTotal, const QString &total);
    void clearTotal(int oldTotal);

private:
    QString m_described;
    std::optional<QString> m_total; ///< As it was reported.
};
