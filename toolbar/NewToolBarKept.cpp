// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/NewToolBar.h"

#include "toolbar/NewToolBarParts.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/Names.h"
#include "toolbar/description/Sections.h"
#include "toolbar/skin/Scale.h"
#include "toolbar/skin/Scheme.h"

#include <QPushButton>
#include <QStackedWidget>
#include <QToolBar>

#include <algorithm>

namespace {

/** What the host says now is more recent than what was kept. */
void insertUnlessSaid(QMap<QString, QString> &options, QLatin1String key, const QString &value)
{
    if (options.value(key).isEmpty() && !value.isEmpty())
        options.insert(key, value);
}

} // namespace

QString NewToolBar::GetToolBarState() const
{
    return m_parts->keeper.state().toText();
}

/** Takes the state out of the options; the looks that it holds become options, unless there are
 *  such already. */
std::optional<KeptState> NewToolBar::takeState(QMap<QString, QString> &options)
{
    std::optional<KeptState> kept = KeptState::fromText(options.take(SkinKey::toolBarState));
    if (!kept)
        return kept;
    insertUnlessSaid(options, SkinKey::scale, kept->scale);
    insertUnlessSaid(options, SkinKey::scheme, kept->scheme);
    if (options.value(SkinKey::scale) != kept->scale || !Scale::isChoice(kept->scale))
        kept->scale.clear();
    if (options.value(SkinKey::scheme) != kept->scheme || !schemeNamed(kept->scheme))
        kept->scheme.clear();
    return kept;
}

void NewToolBar::initWidgetsWith(const std::optional<KeptState> &kept)
{
    expectState(kept);
    InitWidget();
    createAddedCommands();
    m_parts->keeper.restoreFirst();
}

void NewToolBar::expectState(const std::optional<KeptState> &kept)
{
    if (!kept)
        return;
    KeptState state = *kept;
    if (!m_quickAccessButtons.isEmpty()) {
        state.shown.clear();
        state.hidden.clear();
    }
    m_parts->keeper.expect(state);
}

/** Has the state hold what the host says about the looks at run time. */
void NewToolBar::keepLooks(const QMap<QString, QString> &options)
{
    const QString scale = options.value(SkinKey::scale);
    const QString scheme = options.value(SkinKey::scheme);
    m_parts->keeper.noteLooks(Scale::isChoice(scale) ? scale : QString(),
                              schemeNamed(scheme) ? scheme : QString());
}

void NewToolBar::createAddedCommands()
{
    const QList<Controller *> records = sectionRecords(m_controllers, Section::quickAccessBar);
    const bool isWanted = std::any_of(records.begin(), records.end(), [](const Controller *record) {
        return record->name == Name::customise && record->optIn().quickadd;
    });
    if (!isWanted || !m_quickAccessBar || !m_quickAccessSetButton)
        return;

    m_parts->added = std::make_unique<AddedCommands>(m_parts->factory, m_controllers,
                                                     m_quickAccessBar, m_quickAccessSetButton);
    AddedCommands *added = m_parts->added.get();
    m_parts->offer = new QuickAccessOffer(added, m_parts->factory);
    m_parts->offer->watch(m_toolRowStack);
    connect(added, &AddedCommands::commandNeeded, this, &NewToolBar::makeCommand);
    m_parts->keeper.setAdded({});
    connect(added, &AddedCommands::changed, &m_parts->keeper, &StateKeeper::setAdded);
    connect(&m_parts->keeper, &StateKeeper::addedRestored, added, &AddedCommands::set);
}
