// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/fields/TotalLabel.h"

#include <QPointer>
#include <QString>

#include <optional>

class QLineEdit;
class TotalLabel;

/** The field for the number of the page, and the label that shows how many pages there are. */
class PageField
{
public:
    /** The toolbar's own members, which hold the state; none of them is valid before take(). */
    PageField(QPointer<QLineEdit> &field, int &currentPage, int &totalPages);

    /** @param caption the label below the field, which tells the total where no other label does */
    void take(QLineEdit *field, TotalLabel *caption);
    void takeTotalLabel(TotalLabel *label);

    /** Shows the page that the host reports, as text; one blank clears the field. */
    void showPage(const QString &page);
    /** Shows the total out of a text like "/ 12"; one blank clears it. */
    void showTotal(const QString &total);

    /** The page to go to for what was entered into @p field, or none: it shows the page again. */
    std::optional<int> enter(QLineEdit *field);

private:
    QPointer<QLineEdit> &m_field;
    int &m_currentPage;
    int &m_totalPages;
    QPointer<TotalLabel> m_totalLabel;
    QPointer<TotalLabel> m_caption;
};
