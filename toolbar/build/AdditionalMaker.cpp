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

/** The skins have no drawing of it for a coloured line. */
void showFinder(QPushButton *button, const Controller &record, const Presentation &how)
{
    button->setIcon(how.topLineIcon(record, how.text(record).left(1)));
}

/** The described tooltip of both fold buttons may hold one for each. */
template <bool isForUnfolding>
void showHalfToolTip(QPushButton *button, const Controller &record, const Presentation &how)
{
    const QString tip = how.toolTip(record);
    const auto separator = tip.indexOf(QLatin1Char(';'));
    if (separator < 0 || how.takesToolTips())
        return;
    const QString half = isForUnfolding ? tip.mid(separator + 1) : tip.left(separator);
    button->setToolTip(toolTipCard(half, how.cardLines()));
    if (button->text().isEmpty())
        button->setAccessibleName(toolTipTitle(half));
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
    if (record.name == Name::findCommand)
        m_factory.presentation().show<&showFinder>(button, record);
    return button;
}

QPushButton *AdditionalMaker::makeUnfoldButton(QPushButton *foldButton,
                                               const Controller &record) const
{
    QPushButton *button = makeButton(record);
    button->setObjectName(Name::unfold);
    Presentation &presentation = m_factory.presentation();
    presentation.show<&showTurned>(button, record);
    presentation.show<&showHalfToolTip<false>>(foldButton, record);
    presentation.show<&showHalfToolTip<true>>(button, record);
    // On show while the rows are not, and they are at first.
    button->hide();
    return button;
}
