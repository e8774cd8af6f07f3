// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/RowPlan.h"

#include <algorithm>

namespace {

bool isOnRow(const RowPlan::Item &item)
{
    return item.form == RowPlan::Form::Full || item.form == RowPlan::Form::Bare;
}

} // namespace

void RowPlan::fit(int available)
{
    const std::vector<Item *> order = givingWay();
    showSeparators();
    for (const Form next : {Form::Bare, Form::Moved}) {
        for (Item *item : order) {
            if (width() <= available)
                return;
            item->form = next;
            showSeparators();
        }
    }
}

std::vector<RowPlan::Item *> RowPlan::givingWay()
{
    std::vector<Item *> order;
    for (auto item = items.rbegin(); item != items.rend(); ++item) {
        if (item->order > 0 && item->form != Form::Absent)
            order.push_back(&*item);
    }
    std::stable_sort(order.begin(), order.end(),
                     [](const Item *one, const Item *other) { return one->order < other->order; });
    return order;
}

void RowPlan::showSeparators()
{
    Item *waiting = nullptr;
    bool isBeside = false;
    for (Item &item : items) {
        if (item.isSeparator) {
            item.form = Form::Absent;
            waiting = isBeside ? &item : nullptr;
        } else if (isOnRow(item)) {
            if (waiting)
                waiting->form = Form::Full;
            waiting = nullptr;
            isBeside = true;
        }
    }
}

int RowPlan::width() const
{
    int width = around - spacing;
    for (const Item &item : items) {
        if (isOnRow(item))
            width += spacing + (item.form == Form::Bare ? item.bareWidth : item.fullWidth);
    }
    return hasMoved() ? width + spacing + moreWidth : width;
}

bool RowPlan::hasMoved() const
{
    return std::any_of(items.begin(), items.end(),
                       [](const Item &item) { return item.form == Form::Moved; });
}
