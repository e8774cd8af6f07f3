// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/MRToolBarCommands.h"

#include "toolbar/MRToolBarCommandsPrivate.h"
#include "toolbar/description/Names.h"

#include <QPoint>

#include <algorithm>

namespace {

constexpr QLatin1String pagesValue = latin1("pages");
constexpr QLatin1String zoomValue = latin1("zoom");
constexpr QLatin1String backgroundValue = latin1("background");
constexpr QLatin1String contextValue = latin1("context ");

MRToolBarCommands::RunNamed withoutName(const MRToolBarCommands::Run &run)
{
    return run ? [run](const QString &) { run(); } : MRToolBarCommands::RunNamed();
}

MRToolBarCommands::NamedCondition withoutName(const MRToolBarCommands::Condition &condition)
{
    return condition ? [condition](const QString &) { return condition(); }
                     : MRToolBarCommands::NamedCondition();
}

/** By value: the host may set another function in this one. */
template <typename Function, typename Argument>
void call(const Function function, const Argument &argument)
{
    if (function)
        function(argument);
}

} // namespace

MRToolBarCommands::Command::Command(std::shared_ptr<Entry> entry)
    : m_entry(std::move(entry))
{
}

MRToolBarCommands::Command &MRToolBarCommands::Command::usableWhen(const Condition &condition)
{
    return usableWhen(withoutName(condition));
}

MRToolBarCommands::Command &MRToolBarCommands::Command::usableWhen(const NamedCondition &condition)
{
    m_entry->usableWhen = condition;
    return *this;
}

MRToolBarCommands::Command &MRToolBarCommands::Command::checkedWhen(const Condition &condition)
{
    return checkedWhen(withoutName(condition));
}

MRToolBarCommands::Command &MRToolBarCommands::Command::checkedWhen(const NamedCondition &condition)
{
    m_entry->checkedWhen = condition;
    return *this;
}

MRToolBarCommands::Command &MRToolBarCommands::Command::visibleWhen(const Condition &condition)
{
    m_entry->visibleWhen = withoutName(condition);
    return *this;
}

MRToolBarCommands::Command &MRToolBarCommands::Command::withText(const Text &text)
{
    m_entry->text = text;
    return *this;
}

MRToolBarCommands::Command &MRToolBarCommands::Command::withToolTip(const Text &tip)
{
    m_entry->toolTip = tip;
    return *this;
}

MRToolBarCommands::Command &MRToolBarCommands::Command::onDoubleClick(const Run &run)
{
    m_entry->runDouble = withoutName(run);
    return *this;
}

MRToolBarCommands::MRToolBarCommands(MRToolBar *toolBar, QObject *parent)
    : QObject(parent)
    , d(std::make_shared<Private>(this))
{
    setToolBar(toolBar);
}

MRToolBarCommands::~MRToolBarCommands()
{
    d->stop();
}

void MRToolBarCommands::setToolBar(MRToolBar *toolBar)
{
    if (d->toolBar)
        d->toolBar->disconnect(this);
    d->stop();
    d->toolBar = toolBar;
    if (!toolBar)
        return;
    connect(toolBar, &MRToolBar::DoActive, this, [this](const QString &name) { use(name); });
    connect(toolBar, &MRToolBar::DoDoubleActive, this, [this](const QString &name) {
        const Private::EntryPointer entry = d->entry(name);
        answer(name, entry && entry->usable(name) ? entry->runDouble : RunNamed());
    });
    connect(toolBar, &MRToolBar::DoRequestAuthority, this, &MRToolBarCommands::refreshAll);
    connectFields();
    update();
    connectKept();
}

void MRToolBarCommands::connectFields()
{
    connect(d->toolBar, &MRToolBar::DoGotoPage, this,
            [this](int page) { choose([this, page] { call(d->goToPage, page); }, pagesValue); });
    connect(d->toolBar, &MRToolBar::DoSetZoomMode, this, [this](const QString &mode) {
        // The box that shows a reported mode reports it, too.
        if (!d->isTellingZoom)
            choose([this, mode] { call(d->chooseZoom, mode); }, zoomValue);
    });
    connect(d->toolBar, &MRToolBar::DoSearchContent, this, [this](const SearchOption &option) {
        choose([this, option] { call(d->search, option); });
    });
    connect(d->toolBar, &MRToolBar::DoSetBackground, this, [this](BackgroundStyle style) {
        choose([this, style] { call(d->chooseBackground, style); }, backgroundValue);
    });
    connect(d->toolBar, &MRToolBar::DoOpenFile, this, [this](const QString &fileName) {
        choose([this, fileName] { call(d->openRecent, fileName); });
    });
}

void MRToolBarCommands::choose(const Run &choice, const QString &value)
{
    const QPointer<MRToolBarCommands> self(this);
    d->forget(value);
    choice();
    if (self)
        refresh();
}

void MRToolBarCommands::use(const QString &name)
{
    const std::shared_ptr<Private> keptAlive = d;
    const Private::EntryPointer entry = d->entry(name);
    // A control may be clicked before the toolbar hears that it is not usable any more.
    if (entry && !entry->usable(name)) {
        d->forget();
        keptAlive->tell(false);
        return;
    }
    if (entry && entry->action)
        answer(name, [entry](const QString &) { entry->action->trigger(); });
    else
        answer(name, entry ? entry->run : RunNamed());
}

void MRToolBarCommands::answer(const QString &name, const RunNamed &run)
{
    const QPointer<MRToolBarCommands> self(this);
    const QString used = name;
    d->forget();
    if (run)
        run(used);
    if (!self)
        return;
    if (run)
        Q_EMIT triggered(used);
    else
        Q_EMIT unhandled(used);
    if (self)
        refresh();
}

MRToolBarCommands::Command MRToolBarCommands::add(const QString &name, const Run &run)
{
    return add(QStringList(name), withoutName(run));
}

MRToolBarCommands::Command MRToolBarCommands::add(const QStringList &names, const RunNamed &run)
{
    const auto entry = std::make_shared<Entry>();
    entry->run = run;
    for (const QString &name : names)
        d->add(name, entry);
    update();
    return Command(entry);
}

MRToolBarCommands::Command MRToolBarCommands::addPrefix(const QString &prefix, const RunNamed &run)
{
    const auto entry = std::make_shared<Entry>();
    entry->run = run;
    d->prefixes.append({prefix, entry});
    update();
    return Command(entry);
}

MRToolBarCommands::Command MRToolBarCommands::add(const QString &name, QAction *action)
{
    const auto entry = std::make_shared<Entry>();
    entry->action = action;
    entry->isBound = true;
    d->add(name, entry);
    if (action) {
        connect(action, &QAction::changed, this, &MRToolBarCommands::update);
        connect(action, &QObject::destroyed, this, &MRToolBarCommands::update);
    }
    update();
    return Command(entry);
}

void MRToolBarCommands::addDescribed(const QString &name, const Run &run, const Condition &isUsable)
{
    const auto entry = std::make_shared<Entry>();
    entry->run = withoutName(run);
    entry->usableWhen = withoutName(isUsable);
    entry->isIfDescribed = true;
    d->add(name, entry);
}

void MRToolBarCommands::setPages(const std::function<int()> &page,
                                 const std::function<int()> &count,
                                 const std::function<void(int page)> &goTo)
{
    d->goToPage = goTo;
    const auto current = [page] { return page ? page() : 0; };
    const auto total = [count] { return count ? count() : 0; };
    const auto step = [goTo](const std::function<int()> &target) {
        return [goTo, target] { goTo ? goTo(target()) : void(); };
    };
    const Condition hasBefore = [current] { return current() > 1; };
    const Condition hasAfter = [current, total] { return current() < total(); };
    addDescribed(QStringLiteral("d_firstpage"), step([] { return 1; }), hasBefore);
    addDescribed(QStringLiteral("d_prevpage"), step([current] { return current() - 1; }),
                 hasBefore);
    addDescribed(QStringLiteral("d_nextpage"), step([current] { return current() + 1; }), hasAfter);
    addDescribed(QStringLiteral("d_lastpage"), step(total), hasAfter);
    for (const QLatin1String field : {Name::pageField, Name::pageInput})
        addDescribed(field, {}, [total] { return total() > 0; });
    d->setValue(pagesValue, {[current, total] { return QPoint(current(), total()); },
                             [](MRToolBar &toolBar, const QVariant &value) {
                                 const QPoint pages = value.toPoint();
                                 toolBar.DoSetPageInfoSlot(pages.x(), pages.y());
                             }});
    update();
}

void MRToolBarCommands::setZoom(const Text &mode,
                                const std::function<void(const QString &mode)> &choose)
{
    d->chooseZoom = choose;
    const auto current = [mode] { return mode ? mode() : QString(); };
    const Condition isUsable = [current] { return !current().isEmpty(); };
    for (const QLatin1String field : {Name::zoomBox, Name::zoomList})
        addDescribed(field, {}, isUsable);
    addPrefix(Prefix::zoomMode, choose)
        .usableWhen(isUsable)
        .checkedWhen([current](const QString &name) {
            const double percent = zoomPercent(current());
            const bool isActualSize = percent == 100.0;
            return name == current() || (name == Name::actualSize && isActualSize)
                   || (name == Name::customZoom && percent > 0 && !isActualSize);
        });
    Private *data = d.get();
    d->setValue(zoomValue, {[current] { return current(); },
                            [data](MRToolBar &toolBar, const QVariant &value) {
                                data->isTellingZoom = true;
                                if (!value.toString().isEmpty())
                                    toolBar.DoSetZoomModeSlot(value.toString());
                                data->isTellingZoom = false;
                            }});
}

double MRToolBarCommands::zoomPercent(const QString &mode)
{
    if (mode == Name::actualSize)
        return 100.0;
    const bool isPercentage = mode.startsWith(Prefix::zoomMode) && mode.endsWith(QLatin1Char('p'));
    return isPercentage ? mode.mid(Prefix::zoomMode.size()).chopped(1).toDouble() : 0.0;
}

QString MRToolBarCommands::zoomMode(double percent)
{
    return Prefix::zoomMode + QString::number(percent) + QLatin1Char('p');
}

void MRToolBarCommands::setSearch(const std::function<void(const SearchOption &option)> &search)
{
    d->search = search;
}

void MRToolBarCommands::setBackground(const std::function<BackgroundStyle()> &style,
                                      const std::function<void(BackgroundStyle style)> &choose)
{
    d->chooseBackground = choose;
    d->setValue(backgroundValue,
                {[style] { return style ? int(style()) : int(Background_Default); },
                 [](MRToolBar &toolBar, const QVariant &value) {
                     toolBar.DoSetBackgroundSlot(BackgroundStyle(value.toInt()));
                 }});
    update();
}

void MRToolBarCommands::setContext(const QString &name, const Condition &isShown)
{
    d->setValue(contextValue + name, {[isShown] { return isShown && isShown(); },
                                      [name](MRToolBar &toolBar, const QVariant &value) {
                                          toolBar.DoShowContextSlot(name, value.toBool());
                                      }});
    update();
}

bool MRToolBarCommands::run(const QString &name)
{
    if (!isUsable(name))
        return false;
    use(name);
    return true;
}

bool MRToolBarCommands::isUsable(const QString &name) const
{
    const Private::EntryPointer entry = d->entry(name);
    return entry && entry->usable(name);
}

void MRToolBarCommands::update()
{
    if (std::exchange(d->isUpdatePending, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (std::exchange(d->isUpdatePending, false))
                refresh();
        },
        Qt::QueuedConnection);
}

void MRToolBarCommands::refresh()
{
    const std::shared_ptr<Private> keptAlive = d;
    keptAlive->isUpdatePending = false;
    keptAlive->tell(false);
}

void MRToolBarCommands::refreshAll()
{
    const std::shared_ptr<Private> keptAlive = d;
    keptAlive->tell(true);
}
