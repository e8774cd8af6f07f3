// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/WindowList.h"

#include "shell/ReaderSettings.h"
#include "shell/ReaderWindow.h"

#include <QFileInfo>
#include <QScreen>

#include <algorithm>

namespace {

constexpr int step = 32;

ReaderWindow *windowOf(const QString &fileName)
{
    const QString path = QFileInfo(fileName).canonicalFilePath();
    const QList<ReaderWindow *> windows = ReaderWindow::all();
    for (ReaderWindow *window : windows) {
        const QString shown = window->fileName();
        if (!path.isEmpty() && !shown.isEmpty() && QFileInfo(shown).canonicalFilePath() == path)
            return window;
    }
    return nullptr;
}

void bringUp(ReaderWindow *window)
{
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
}

bool isCovered(const QRect &place)
{
    const QList<ReaderWindow *> windows = ReaderWindow::all();
    return std::any_of(windows.begin(), windows.end(), [&place](const ReaderWindow *window) {
        return window->geometry().topLeft() == place.topLeft();
    });
}

/** Makes a new window as large as another one, and puts it where all of them are seen. */
void placeBeside(ReaderWindow *window, const ReaderWindow &other)
{
    window->restoreGeometry(other.saveGeometry());
    window->setWindowState(window->windowState() & ~Qt::WindowFullScreen);
    const QRect screen = other.screen()->availableGeometry();
    QRect place = other.geometry();
    while (isCovered(place) && screen.contains(place))
        place.translate(step, step);
    if (!window->isMaximized() && screen.contains(place))
        window->move(other.pos() + place.topLeft() - other.geometry().topLeft());
}

} // namespace

WindowList::WindowList(const QDomDocument &description, const Options &options)
    : m_description(description)
    , m_options(options)
    , m_settings(ReaderSettings::shared())
{
}

WindowList::~WindowList() = default;

ReaderWindow *WindowList::create()
{
    // Copies of a QDomDocument are the same document, which a toolbar may change.
    auto *window = new ReaderWindow(m_description.cloneNode().toDocument(),
                                    m_options.keeps() ? m_options.skin : QString());
    window->setAttribute(Qt::WA_DeleteOnClose);
    if (m_options.hostPanel)
        window->addHostPanel();
    // With --watch there is one toolbar to watch, and another document takes the place of the
    // first.
    if (!m_options.watch) {
        window->setOpener(
            [this, window](const QStringList &fileNames) { open(fileNames, window); });
    }
    return window;
}

void WindowList::open(const QStringList &fileNames, ReaderWindow *asked)
{
    for (const QString &fileName : fileNames)
        openOne(fileName, asked);
    if (!fileNames.isEmpty())
        return;
    const QList<ReaderWindow *> others = ReaderWindow::all();
    ReaderWindow *window = freeWindow(asked);
    if (!window) {
        window = create();
        if (!others.isEmpty())
            placeBeside(window, *others.first());
    }
    bringUp(window);
}

void WindowList::openOne(const QString &fileName, ReaderWindow *asked)
{
    if (ReaderWindow *window = windowOf(fileName))
        return bringUp(window);
    const QList<ReaderWindow *> others = ReaderWindow::all();
    ReaderWindow *window = freeWindow(asked);
    const bool isNew = !window;
    if (isNew)
        window = create();
    QString refusal;
    window->openOrExplain(fileName, &refusal);
    if (refusal.isEmpty() || !isNew || others.isEmpty()) {
        if (isNew && !others.isEmpty())
            placeBeside(window, asked ? *asked : *others.first());
        bringUp(window);
    } else {
        window->deleteLater();
        window = asked ? asked : others.first();
    }
    if (!refusal.isEmpty())
        window->explain(refusal);
}

ReaderWindow *WindowList::freeWindow(ReaderWindow *asked) const
{
    if (asked && !asked->hasDocument())
        return asked;
    const QList<ReaderWindow *> windows = ReaderWindow::all();
    for (ReaderWindow *window : windows) {
        if (!window->hasDocument())
            return window;
    }
    return nullptr;
}
