// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/fields/TotalLabel.h"

#include "toolbar/fields/PageText.h"

void TotalLabel::showText(const QString &text)
{
    if (text == m_givenText)
        return;
    m_givenText = text;
    setText(m_total.isEmpty() ? text : PageText::withTotal(text, 0, m_total));
}

void TotalLabel::showTotal(const QString &total, int formerTotal)
{
    m_total = total;
    setText(PageText::withTotal(text(), formerTotal, total));
}

void TotalLabel::clearTotal(int formerTotal)
{
    m_total.clear();
    setText(PageText::withoutTotal(text(), formerTotal));
}
