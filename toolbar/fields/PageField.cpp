// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/fields/PageField.h"

#include "toolbar/fields/PageText.h"
#include "toolbar/fields/PageValidator.h"
#include "toolbar/widgets/FieldKeyFilter.h"

#include <QLineEdit>

PageField::PageField(QPointer<QLineEdit> &field, int &currentPage, int &totalPages)
    : m_field(field)
    , m_currentPage(currentPage)
    , m_totalPages(totalPages)
{
}

void PageField::take(QLineEdit *field, TotalLabel *caption)
{
    field->setValidator(new PageValidator(field));
    new FieldKeyFilter(field);
    m_field = field;
    m_caption = caption;
}

void PageField::takeTotalLabel(TotalLabel *label)
{
    m_totalLabel = label;
}

void PageField::showPage(const QString &page)
{
    if (!m_field)
        return;

    const bool isCleared = page == PageText::cleared;
    m_field->setText(isCleared ? QString() : page);
    m_currentPage = isCleared ? 0 : page.toInt();
}

void PageField::showTotal(const QString &total)
{
    TotalLabel *label = m_totalLabel ? m_totalLabel : m_caption;
    if (!label)
        return;

    if (total == PageText::cleared) {
        label->clearTotal(m_totalPages);
        m_totalPages = 0;
    } else if (const auto text = PageText::totalText(total)) {
        label->showTotal(m_totalPages, *text);
        m_totalPages = text->toInt();
    }
}

std::optional<int> PageField::enter(QLineEdit *field)
{
    const int page = PageText::entered(field->text());
    if (page < 1 || page > m_totalPages) {
        field->setText(PageText::pageOfTotal(m_currentPage, m_totalPages));
        return std::nullopt;
    }
    m_currentPage = page;
    return page;
}
