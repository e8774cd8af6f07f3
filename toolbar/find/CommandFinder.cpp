// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/find/CommandFinder.h"

#include "toolbar/description/Controller.h"
#include "toolbar/find/Spelling.h"

#include <QKeySequence>
#include <QThread>
#include <QWidget>

#include <memory>
#include <utility>

namespace {

constexpr int mostLastFound = 10;

} // namespace

CommandFinder::CommandFinder(CommandAccess &access, QWidget *toolBar)
    : QObject(toolBar)
    , m_access(access)
    , m_toolBar(toolBar)
{
}

CommandFinder::~CommandFinder()
{
    if (m_spelling)
        m_spelling->wait();
    // It belongs to the window, which may outlive the toolbar.
    if (m_popup) {
        close();
        m_popup->setFound({}, false);
        m_popup->disconnect(this);
        m_popup->deleteLater();
    }
}

const CommandIndex &CommandFinder::index()
{
    if (!m_index) {
        m_index.emplace(m_access.places(), [this](const CommandPlace &place) {
            return CommandTexts{m_access.text(place), m_access.toolTip(place)};
        });
        m_isSpelt = false;
    }
    return *m_index;
}

void CommandFinder::open(QWidget *opener)
{
    // The host may have put the toolbar into another window.
    if (m_popup && m_popup->parentWidget() != m_toolBar->window()) {
        close();
        m_popup->deleteLater();
        m_popup = nullptr;
    }
    if (!m_popup)
        makePopup();
    m_popup->setLayoutDirection(m_toolBar->layoutDirection());
    m_popup->setLook(m_access.look());
    m_popup->setAnchor(m_access.topLine(), opener);
    listVisible();
    if (!isOpen())
        m_popup->clear();
    search();
    m_popup->enter();
    startSpelling();
}

void CommandFinder::makePopup()
{
    m_popup =
        new FindPopup(m_toolBar->window(), [this](std::size_t command) { return line(command); });
    connect(m_popup, &FindPopup::typedChanged, this, &CommandFinder::search);
    connect(m_popup, &FindPopup::dismissed, this, &CommandFinder::close);
    // Later, because Qt still uses the list after a click, which may make the host delete it.
    connect(m_popup, &FindPopup::chosen, this, [this](std::size_t command, FindPopup::Wish wish) {
        QMetaObject::invokeMethod(
            this, [=] { perform(command, wish); }, Qt::QueuedConnection);
    });
}

void CommandFinder::close()
{
    if (isOpen())
        m_popup->leave();
}

void CommandFinder::setLastFound(const QStringList &names)
{
    const QStringList kept = names.mid(0, mostLastFound);
    if (kept == m_lastFound)
        return;
    m_lastFound = kept;
    Q_EMIT lastFoundChanged();
}

void CommandFinder::followTexts()
{
    // A host that changes the language sets many texts.
    if (!isOpen())
        takeTexts();
    else if (!std::exchange(m_isFollowing, true))
        QMetaObject::invokeMethod(this, &CommandFinder::takeTexts, Qt::QueuedConnection);
}

void CommandFinder::takeTexts()
{
    m_isFollowing = false;
    m_index.reset();
    if (m_popup)
        m_popup->retranslate();
    if (!isOpen()) {
        // Assistive technology may still ask for the lines.
        if (m_popup)
            m_popup->setFound({}, false);
        return;
    }
    listVisible();
    list(m_popup->typed(), true);
    startSpelling();
}

void CommandFinder::followLook()
{
    if (!isOpen())
        return;
    m_popup->setLayoutDirection(m_toolBar->layoutDirection());
    m_popup->setLook(m_access.look());
}

void CommandFinder::followStates()
{
    if (isOpen())
        m_popup->refresh();
}

const CommandPlace *CommandFinder::placeOf(std::size_t command) const
{
    const CommandPlace *disabled = nullptr;
    for (const CommandPlace &place : m_index->commands().at(command).places) {
        const CommandAccess::State state = m_access.state(place);
        if (!state.isVisible)
            continue;
        // What leads to a disabled command is going to be disabled, too, when it is made.
        if (state.isEnabled && (state.isMade || !disabled))
            return &place;
        if (!state.isEnabled && !disabled)
            disabled = &place;
    }
    return disabled;
}

FoundLine CommandFinder::line(std::size_t command) const
{
    const CommandIndex::Command &found = m_index->commands().at(command);
    const CommandPlace *shown = placeOf(command);
    const CommandPlace &place = shown ? *shown : found.places.first();
    FoundLine line;
    line.icon = m_access.icon(place);
    line.isIconForTopLine = m_access.isIconForTopLine(place);
    line.text = m_access.text(place);
    line.where = m_access.where(place);
    line.key = keyOf(command);
    line.isEnabled = shown && m_access.state(place).isEnabled;
    if (!line.isEnabled)
        line.reason = m_access.reason(place);
    return line;
}

QString CommandFinder::keyOf(std::size_t command) const
{
    for (const CommandPlace &place : m_index->commands().at(command).places) {
        const QKeySequence sequence(place.record->shortcut);
        if (!sequence.isEmpty())
            return sequence.toString(QKeySequence::NativeText);
    }
    return {};
}

void CommandFinder::listVisible()
{
    m_visible.clear();
    for (std::size_t i = 0; i < index().commands().size(); ++i) {
        if (placeOf(i))
            m_visible.push_back(i);
    }
    m_found = m_visible;
    m_typed.clear();
}

void CommandFinder::search()
{
    list(m_popup->typed(), false);
}

/** Lists what is found by the text. @param keepsLine whether the line chosen stays chosen */
void CommandFinder::list(const QString &typed, bool keepsLine)
{
    const bool isMoreTyped = typed.startsWith(m_typed);
    m_found = index().find(typed, m_lastFound, isMoreTyped ? m_found : m_visible);
    m_typed = typed;
    m_popup->setFound(m_found, keepsLine);
}

void CommandFinder::startSpelling()
{
    if (m_isSpelt || m_spelling)
        return;
    const QSet<QChar> ideographs = index().ideographs();
    const auto syllables = std::make_shared<QHash<QChar, QString>>();
    // To load the tables takes longer than a user waits for a key.
    m_spelling =
        QThread::create([syllables, ideographs] { *syllables = Spelling::syllables(ideographs); });
    m_spelling->setParent(this);
    connect(m_spelling, &QThread::finished, this,
            [this, syllables, ideographs] { takeSpelling(*syllables, ideographs); });
    m_spelling->start(QThread::LowPriority);
}

void CommandFinder::takeSpelling(const QHash<QChar, QString> &syllables,
                                 const QSet<QChar> &ideographs)
{
    m_spelling->deleteLater();
    m_spelling = nullptr;
    if (!m_index)
        return;
    m_index->addSpelling(syllables);
    if (isOpen() && !m_typed.isEmpty()) {
        m_found = m_visible;
        list(m_typed, true);
    }
    // The texts may have changed meanwhile.
    m_isSpelt = m_index->ideographs() == ideographs;
    if (isOpen())
        startSpelling();
}

void CommandFinder::perform(std::size_t command, FindPopup::Wish wish)
{
    if (!m_index || command >= m_index->commands().size())
        return;
    // The host may delete the toolbar, and this with it, or change the language in its answers.
    const QPointer<CommandFinder> self(this);
    const QString name = m_index->commands().at(command).name;
    const CommandPlace *found = placeOf(command);
    if (!found)
        return;
    const CommandPlace place = *found;
    if (!m_access.state(place).isMade && !(m_access.make(place) && self))
        return;
    const CommandAccess::State state = m_access.state(place);
    if (!state.isMade || !state.isVisible || !state.isEnabled) {
        followStates();
        return;
    }
    close();
    if (self)
        remember(name);
    if (!self)
        return;
    if (wish == FindPopup::Wish::Run)
        m_access.trigger(place);
    else
        m_access.reveal(place);
}

void CommandFinder::remember(const QString &name)
{
    QStringList names = m_lastFound;
    names.removeAll(name);
    names.prepend(name);
    setLastFound(names);
}
