// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/build/AdditionalMaker.h"

#include "toolbar/build/ControlFactory.h"
#include "toolbar/build/Presentation.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Names.h"
#include "toolbar/skin/Appearance.h"
#include "toolbar/widgets/ToolTipCard.h"

#include <QPointer>
#include <QPushButton>
#include <QVariant>

namespace {

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
    const auto turn = [foldButton, button] {
        const QPixmap foldPixmap = foldButton->icon().pixmap(foldButton->iconSize());
        if (!foldPixmap.isNull())
            button->setIcon(QIcon(foldPixmap.transformed(QTransform().rotate(180))));
    };
    turn();
    const QPointer<QPushButton> fold(foldButton);
    QObject::connect(&m_factory.presentation().appearance(), &Appearance::changed, button,
                     [fold, turn] {
                         if (fold)
                             turn();
                     });

    const auto separator = record.tooltip.indexOf(QLatin1Char(';'));
    if (separator >= 0) {
        replaceTip(foldButton, record.tooltip.left(separator));
        replaceTip(button, record.tooltip.mid(separator + 1));
    }
    // On show while the rows are not, and they are at first.
    button->hide();
    return button;
}
