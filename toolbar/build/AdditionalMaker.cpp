// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/AdditionalMaker.h"

#include "toolbar/build/ControlFactory.h"
#include "toolbar/build/Presentation.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Names.h"
#include "toolbar/skin/TurnedIcon.h"
#include "toolbar/widgets/ToolTipCard.h"

#include <QPushButton>
#include <QVariant>

namespace {

/** What unfolds has the picture of what folds, upside down. */
void showTurned(QPushButton *button, const Controller &record, const Presentation &how)
{
    button->setIcon(turnedIcon(how.icon(record)));
}

void replaceTip(QPushButton *button, const QString &tip)
{
    button->setToolTip(QString());
    setToolTipCard(button, tip);
    nameByToolTip(button, button->text(), tip);
}

} // namespace

AdditionalMaker::AdditionalMaker(const ControlFactory &factory)
    : m_factory(factory)
{
}

QPushButton *AdditionalMaker::makeButton(const Controller &record) const
{
    QPushButton *button = m_factory.makeTopLineButton(record, m_factory.owner());
    button->setProperty(Property::module, Module::button);
    button->setCheckable(record.checkable);
    button->setChecked(record.checked);
    return button;
}

QPushButton *AdditionalMaker::makeUnfoldButton(QPushButton *foldButton,
                                               const Controller &record) const
{
    QPushButton *button = makeButton(record);
    button->setObjectName(Name::unfold);
    m_factory.presentation().show<&showTurned>(button, record);

    const auto separator = record.tooltip.indexOf(QLatin1Char(';'));
    if (separator >= 0) {
        replaceTip(foldButton, record.tooltip.left(separator));
        replaceTip(button, record.tooltip.mid(separator + 1));
    }
    // On show while the rows are not, and they are at first.
    button->hide();
    return button;
}
