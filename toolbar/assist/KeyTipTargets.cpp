// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/assist/KeyTipTargets.h"

#include "toolbar/description/Controller.h"
#include "toolbar/description/KeyTipLetters.h"
#include "toolbar/description/Sections.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/MRScrollWidget.h"
#include "toolbar/widgets/TabButton.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QToolBar>
#include <QToolButton>

#include <vector>

namespace {

/** Those used most come first, as they get the letter that comes to mind. */
constexpr QLatin1String topLineSections[]{Section::tabBar, Section::appButton,
                                          Section::quickAccessBar, Section::additional};

bool hasKeyTip(const Controller &record)
{
    return !record.name.isEmpty()
           && (record.type == Tag::button || record.type == Tag::menu
               || record.type == Tag::comboBox || record.type == Tag::lineEdit);
}

/** The one of that name that is shown. */
template <typename Widget>
QWidget *shownOf(const NamedList<Widget> &list, const QString &name, const QWidget *area = nullptr)
{
    const QList<qsizetype> positions = list.positions(name);
    for (const qsizetype position : positions) {
        QWidget *widget = list.at(position);
        if (widget && widget->isVisible() && (!area || area->isAncestorOf(widget)))
            return widget;
    }
    return nullptr;
}

/** What holds the controls that a narrow row has no room for. */
const Controller &moreRecord()
{
    static const Controller record = [] {
        Controller more;
        more.type = Tag::button;
        more.name = Name::rowMore;
        return more;
    }();
    return record;
}

/** The buttons that the bar has besides the described ones. */
std::vector<Controller> furtherRecords(const QToolBar *bar)
{
    if (!bar)
        return {};
    Controller record;
    record.section = Section::quickAccessBar;
    record.name = Part::overflowButton;
    std::vector<Controller> records{record};
    const QList<QAction *> buttons = bar->actions();
    for (const QAction *button : buttons) {
        if (!button->property(Property::added).isValid())
            continue;
        record.name = button->objectName();
        record.text = button->text();
        records.push_back(record);
    }
    return records;
}

/** All that belongs to a control of a row. */
QWidget *placeOf(QWidget *control, bool isInPanel)
{
    const bool isButton = qobject_cast<QAbstractButton *>(control);
    return isButton || isInPanel ? control : control->parentWidget();
}

QWidget *shownField(const QWidget *page, const QString &name)
{
    const QWidgetList widgets = page->findChildren<QWidget *>(name);
    for (QWidget *widget : widgets) {
        const bool isField = qobject_cast<QComboBox *>(widget) || qobject_cast<QLineEdit *>(widget);
        if (isField && widget->isVisible())
            return widget;
    }
    return nullptr;
}

} // namespace

KeyTipTargets::KeyTipTargets(const QList<Controller *> &records, const ControlLists &lists)
    : m_records(records)
    , m_lists(lists)
{
}

QList<KeyTip> KeyTipTargets::ofTopLine() const
{
    QList<const Controller *> records;
    QList<QWidget *> controls;
    for (const QLatin1String section : topLineSections) {
        const QList<Controller *> described = section == Section::appButton
                                                  ? appButtonRecords(m_records)
                                                  : sectionRecords(m_records, section);
        for (int i = 0; i < described.size(); ++i) {
            records.append(described.at(i));
            controls.append(topLineControl(*described.at(i), i));
        }
    }
    // Last, so that the letters of the others do not depend on what the user adds.
    const std::vector<Controller> further = furtherRecords(m_lists.quickAccessBar);
    for (const Controller &record : further) {
        records.append(&record);
        controls.append(topLineControl(record, -1));
    }

    // Also those that are hidden have letters, so that nobody else gets these.
    const QStringList letters = KeyTipLetters::assigned(records);
    QList<KeyTip> tips;
    for (int i = 0; i < records.size(); ++i) {
        if (controls.at(i) && controls.at(i)->isVisible() && !letters.at(i).isEmpty())
            tips.append({letters.at(i), controls.at(i), controls.at(i)});
    }
    return tips;
}

QWidget *KeyTipTargets::topLineControl(const Controller &record, int position) const
{
    if (record.section == Section::appButton)
        return m_lists.appButtons.at(position);
    if (record.section == Section::tabBar)
        return m_lists.tabButtons.at(position);
    if (record.name == Part::overflowButton)
        return m_lists.quickAccessBar->findChild<QWidget *>(Part::overflowButton);
    if (record.section == Section::quickAccessBar)
        return record.name == Name::customise ? m_lists.quickAccessSetButton.data()
                                              : buttonOn(m_lists.quickAccessBar, record.name);
    QWidget *control = shownOf(m_lists.additionalWidgets, record.name);
    // The two buttons of folding take turns.
    return control || record.name != Name::fold ? control
                                                : shownOf(m_lists.additionalWidgets, Name::unfold);
}

QList<KeyTip> KeyTipTargets::ofRow() const
{
    const TabButton *tab = tabOnShow();
    if (!tab || !page())
        return {};

    QList<RowRecord> described = rowRecords(tab->objectName());
    // Last, and always, so that the letters do not depend on the width of the row.
    described.append({&moreRecord(), false});
    QList<const Controller *> records;
    for (const RowRecord &record : described)
        records.append(record.record);
    const QStringList letters = KeyTipLetters::assigned(records);
    QList<KeyTip> tips;
    for (int i = 0; i < described.size(); ++i) {
        QWidget *control = rowControl(described.at(i), tab->objectName());
        if (control && control->isVisible() && !letters.at(i).isEmpty())
            tips.append({letters.at(i), control, placeOf(control, described.at(i).isInGroup)});
    }
    return tips;
}

QList<KeyTipTargets::RowRecord> KeyTipTargets::rowRecords(const QString &tab) const
{
    QList<RowRecord> records;
    // Tabs of the same name share the row.
    const QList<Controller *> tabs = sectionRecords(m_records, Section::tabBar);
    for (const Controller *described : tabs) {
        if (described->name != tab)
            continue;
        for (const Controller *record : described->children) {
            const bool isPanel = record->type == Tag::buttonGroup || record->type == Tag::extra;
            const QList<const Controller *> within =
                isPanel
                    ? QList<const Controller *>(record->children.begin(), record->children.end())
                    : QList<const Controller *>{record};
            for (const Controller *control : within) {
                if (hasKeyTip(*control))
                    records.append({control, isPanel});
            }
        }
    }
    return records;
}

QWidget *KeyTipTargets::rowControl(const RowRecord &record, const QString &tab) const
{
    const QString &name = record.record->name;
    if (record.record->type == Tag::comboBox || record.record->type == Tag::lineEdit)
        return shownField(page(), name);
    if (record.isInGroup)
        return shownOf(m_lists.groupButtons, name, page());
    return buttonOn(m_lists.rows.value(tab), name);
}

QWidget *KeyTipTargets::page() const
{
    return m_lists.currentRowArea ? m_lists.currentRowArea->parentWidget() : nullptr;
}

const TabButton *KeyTipTargets::tabOnShow() const
{
    for (const QPushButton *button : m_lists.tabButtons) {
        const auto *tab = dynamic_cast<const TabButton *>(button);
        if (tab && tab->isOnShow())
            return tab;
    }
    return nullptr;
}
