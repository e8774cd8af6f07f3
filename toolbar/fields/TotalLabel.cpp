// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/fields/TotalLabel.h"

#include "toolbar/fields/PageText.h"

void TotalLabel::describe(const QString &text)
{
    if (text == m_described)
        return;
    m_described = text;
    setText(m_total ? PageText::withTotal(text, 0, *m_total) : text);
}

void TotalLabel::showTotal(int oldTotal, const QString &total)
{
    m_total = total;
    setText(PageText::withTotal(text(), oldTotal, total));
}

void TotalLabel::clearTotal(int oldTotal)
{
    m_total.reset();
    setText(PageText::withoutTotal(text(), oldTotal));
}
