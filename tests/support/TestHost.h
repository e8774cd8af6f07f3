// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/MRToolBar.h"
#include "toolbar/NewToolBar.h"
#include "toolbar/skin/Skin.h"

#include <QAction>
#include <QDomDocument>
#include <QMainWindow>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <memory>

/** Chooses a skin for the time of one test. */
class SkinChoice
{
public:
    explicit SkinChoice(int style = ofRow())
        : m_previous(std::exchange(NewToolBar::uiStyle, style))
    {
        // Needed by widgets that a test creates without a toolbar.
        Skin::followSelector(&NewToolBar::uiStyle);
    }
    ~SkinChoice() { NewToolBar::uiStyle = m_previous; }
    Q_DISABLE_COPY_MOVE(SkinChoice)

    /** The value of the column "skin". */
    static int ofRow();

private:
    int m_previous;
};

constexpr int marodi = 0;
constexpr int lum = 1;

/** The column "skin" with a row for each. */
void addSkins();

/** A host window with a toolbar, made from the sections of a description. */
class TestHost
{
public:
    using SkinMap = QMap<QString, QString>;

    explicit TestHost(const QString &sections, const SkinMap &skin = {},
                      ToolBarAlignment alignment = ToolBarLeft);

    /** The same on the screen, and the latter with enabled rows. */
    static TestHost shown(const QString &sections, const SkinMap &skin = {});
    static TestHost enabled(const QString &sections, const SkinMap &skin = {});

    /** A host with a shipped description such as "marodi/mr_toolbar.release.xml". */
    static std::unique_ptr<TestHost> withShipped(const QString &path, const SkinMap &skin = {});
    /** The same with the release description of the chosen skin. */
    static std::unique_ptr<TestHost> withRelease(const SkinMap &skin = {});

    /** A host with the description in a file. */
    static std::unique_ptr<TestHost> withFile(const QString &path, const SkinMap &skin = {});

    /** Shows the window and waits until it is on the screen and active. */
    void show();
    /** Activates the window again, for instance after a menu, and waits until it is active. */
    void activate();
    /** The rows stay disabled until the host has reported a first state. */
    void enableRows() { setUsable(QStringLiteral("no control"), true); }
    void showEnabled();
    /** Reports every control as usable, as hosts do on DoRequestAuthority(). */
    void enableEverything();

    QMainWindow &window() { return *m_window; }
    void deleteWindow() { m_window.reset(); }
    /** Leaves the deletion of the window to the caller. */
    QMainWindow *releaseWindow() { return m_window.release(); }
    MRToolBar &facade() { return *m_facade; }
    void deleteFacade() { m_facade.reset(); }
    NewToolBar *toolBar() const { return m_window->findChild<NewToolBar *>(); }
    /** The command of that name; null if there is none. */
    QAction *action(const QString &name) const { return toolBar()->GetActionInTotal(name); }
    QList<QPushButton *> shownTabs() const;
    /** Opens each visible tab and calls @p look with its name. */
    void openEachTab(const std::function<void(const QString &)> &look);
    /** The style sheet of the strip, and with it of the whole toolbar. */
    QString sheet() const;
    /** Device-independent pixels of a length given in pixels at 96 dpi. */
    int scaled(double designPixels) const;

    /** The child of the window of that class and object name; null if there is none. */
    template <typename Object>
    Object *find(const QString &name) const
    {
        return m_window->findChild<Object *>(name);
    }

    void click(const QString &buttonName);

    void setUsable(QString name, bool usable);
    void setVisible(QString name, bool visible);
    void setChecked(QString name, bool checked);
    void setSkin(const SkinMap &skin) { m_facade->DoSetSkinStyleSlot(skin); }

    /** The first argument of every emission that the spy has recorded. */
    static QStringList texts(const QSignalSpy &spy);

private:
    TestHost(const QDomDocument &document, const SkinMap &skin, ToolBarAlignment alignment);

    QDomDocument m_document;
    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<MRToolBar> m_facade;
};

/** Processes all pending events, deferred deletions included. */
void runDeferredDeletes();
