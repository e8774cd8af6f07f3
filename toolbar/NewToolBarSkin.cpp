// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/NewToolBar.h"

#include "toolbar/Latin1.h"
#include "toolbar/NewToolBarParts.h"
#include "toolbar/description/Names.h"
#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/Scale.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/skin/SkinIcon.h"
#include "toolbar/skin/StyleSheet.h"
#include "toolbar/widgets/MRMainToolBar.h"
#include "toolbar/widgets/RowPause.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QToolBar>

/** What a skin map changes beside the colours. */
struct NewToolBar::StyleChanges
{
    bool sheet = false;
    bool lengths = false;
};

namespace {

/** Removes what the platform's style would draw around the library's own tool bars. */
constexpr QLatin1String plainToolBarRule =
    latin1("QToolBar[intoolbar=\"true\"]{border:none;padding:0px 0px 0px 0px;}");

/** Of both skins. */
constexpr QLatin1String touchSheet = latin1(":/mr_toolbar/Resources/touch.qss");
/** Described quick access buttons are never checked on the coloured line; added ones may be. */
constexpr QLatin1String checkedQuickButtonRule =
    latin1("QToolBar#toolbar_quickaccessbar QToolButton:checked"
           "{background-color:[MainColor.checked];}");

/**
 * Under a sheet of the application, a tool bar keeps the margins of that sheet for good unless it
 * has been polished before it gets ours.
 */
void leaveApplicationSheet(QWidget *hostToolBar)
{
    if (qApp->styleSheet().isEmpty())
        return;

    hostToolBar->ensurePolished();
    const QList<QToolBar *> bars = hostToolBar->findChildren<QToolBar *>();
    for (const QToolBar *bar : bars)
        bar->ensurePolished();
}

/**
 * A button that gets its first sheet before it is polished looks up its rules twice: its answer to
 * the change of style needs them, and the polishing after it discards them.
 */
void polishFilledRows(const QWidget *hostToolBar)
{
    const auto rows = hostToolBar->findChildren<MRMainToolBar *>();
    for (const MRMainToolBar *row : rows) {
        if (!row->isFilled())
            continue;
        const auto controls = row->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        for (const QWidget *control : controls)
            control->ensurePolished();
    }
}

void applySheet(QWidget *hostToolBar, const QString &sheet)
{
    const QString current = hostToolBar->styleSheet();
    // Qt would style every control anew.
    if (sheet == current)
        return;

    leaveApplicationSheet(hostToolBar);
    if (current.isEmpty()) {
        polishFilledRows(hostToolBar);
        hostToolBar->setStyleSheet(sheet);
        return;
    }
    // Otherwise Qt leaves what has been polished as it is.
    hostToolBar->ensurePolished();
    // Where one sheet replaces another, Qt styles every control twice; where there is none in
    // between, once.
    const RowPause pause(hostToolBar);
    hostToolBar->setStyleSheet(QString());
    hostToolBar->setStyleSheet(sheet);
}

/** A label works out where the sheet's padding leaves room for its text for each sheet only. */
void mirrorLabels(const QWidget *toolBar)
{
    const QList<QLabel *> labels = toolBar->findChildren<QLabel *>();
    for (QLabel *label : labels)
        label->setFrameStyle(label->frameStyle());
}

} // namespace

QString NewToolBar::GetResourceDir()
{
    return Skin::resourceDirectory();
}

QString NewToolBar::GetIconPath(QString name)
{
    return skinIconPath(m_resourceDir, name);
}

QString NewToolBar::ScaleSheet(QString const &sheet, float factor)
{
    return StyleSheet::scaled(sheet, factor);
}

QString NewToolBar::GetToolBarStyleSheet()
{
    return m_toolBarStyleSheet;
}

QMap<QString, QString> NewToolBar::takeOptions(QMap<QString, QString> &skin)
{
    QMap<QString, QString> options;
    for (const QLatin1String key : SkinKey::options) {
        if (skin.contains(key))
            options.insert(key, skin.take(key));
    }
    return options;
}

void NewToolBar::chooseAppearance(const QMap<QString, QString> &options,
                                  const QMap<QString, QString> &colours)
{
    // Without colours those of before stay, and the main one with them.
    m_appearance->set(options.value(SkinKey::scheme),
                      colours.isEmpty() ? QString() : Skin::mainColour(colours));
}

void NewToolBar::chooseScale(const QMap<QString, QString> &options)
{
    m_scaling->choose(options.value(SkinKey::scale));
    m_scaling->chooseTouch(options.value(SkinKey::touch));
    m_scaling->chooseApplicationFont(options.value(SkinKey::applicationFont));
    m_scale = m_scaling->factor();
}

void NewToolBar::InitSkinStyle(QMap<QString, QString> skin)
{
    m_skinMap = Skin::initialMap(skin);
    m_externalQss = m_skinMap.contains(SkinKey::externalSheet);
}

void NewToolBar::SwitchSkinStyle(QMap<QString, QString> skin)
{
    const QPointer<NewToolBar> self(this);
    QMap<QString, QString> options = takeOptions(skin);
    const std::optional<KeptState> kept = takeState(options);
    // Who applies the sheet was settled at construction and stays so.
    if (!skin.isEmpty())
        m_skinMap = Skin::switchedMap(skin);
    // Each of them alone would have every control styled again.
    StyleChanges changes;
    m_styleChanges = &changes;
    chooseAppearance(options, skin);
    chooseScale(options);
    m_styleChanges = nullptr;
    if (m_parts->presentation.chooseCardLines(options.value(SkinKey::toolTipWords)))
        showTextsAgain();
    chooseKeyTips(options.value(SkinKey::keyTips));
    if (changes.lengths)
        followScale();
    else if (changes.sheet || !skin.isEmpty())
        ResetSkinStyle();
    // Last, as the host may hear of it.
    if (kept)
        m_parts->keeper.restore(*kept);
    if (self)
        keepLooks(options);
}

bool NewToolBar::ResetSkinStyle()
{
    if (m_parts->finder)
        m_parts->finder->followLook();
    QString sheet = LoadQss(GetResourceDir() + QStringLiteral("qssfile.qss"));
    if (m_parts->added && !Skin::isLum())
        sheet += checkedQuickButtonRule;
    sheet = StyleSheet::filled(sheet, m_skinMap, Skin::isLum());
    if (m_scaling->usesApplicationFont())
        sheet = StyleSheet::withoutFonts(sheet);
    if (const int target = m_scaling->leastTarget())
        sheet += StyleSheet::forTouch(LoadQss(touchSheet), target, m_scale);
    if (const SchemeColours *colours = m_appearance->colours())
        sheet += schemeSheet(LoadQss(GetResourceDir() + QStringLiteral("scheme.qss")), *colours);
    if (m_additionalWidgets.first(Name::findCommand))
        sheet = StyleSheet::withLookOf(sheet, Name::preferences, Name::findCommand);
    if (m_externalQss) {
        // The host scales and applies it.
        m_toolBarStyleSheet = sheet + plainToolBarRule;
        return true;
    }
    if (m_hostToolBar)
        applySheet(m_hostToolBar, ScaleSheet(sheet + QLatin1Char(' ') + plainToolBarRule, m_scale));
    return true;
}

void NewToolBar::followAppearance()
{
    if (m_styleChanges)
        m_styleChanges->sheet = true;
    else
        ResetSkinStyle();
    // A pointer over the search field has left the button a sheet of its own.
    if (m_searchSetButton && m_searchSetButton->styleSheet().contains(QLatin1String("background")))
        Inner_DoActiveSetButtonSlot(false);
}

void NewToolBar::followScale()
{
    m_scale = m_scaling->factor();
    if (m_styleChanges) {
        m_styleChanges->lengths = true;
        return;
    }
    const RowPause pause(this);
    m_parts->presentation.fitAgain();
    ResetSkinStyle();
}

void NewToolBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        followLanguage();
    if (event->type() != QEvent::LayoutDirectionChange)
        return;
    mirrorLabels(this);
    if (m_parts && m_parts->finder)
        m_parts->finder->followLook();
}

void NewToolBar::showTextsAgain()
{
    const RowPause pause(this);
    m_parts->presentation.showAgain();
}

void NewToolBar::followLanguage()
{
    showTextsAgain();
    m_parts->zoom.retranslate();
    m_parts->recentFiles.retranslate();
    if (m_parts->finder)
        m_parts->finder->followTexts();
}

void NewToolBar::SetScale(double factor)
{
    m_scaling->set(factor);
    keepLooks({{SkinKey::scale, QString::number(factor)}});
}

void NewToolBar::DoSetSkinStyleSlot(ToolBarSkinStyle skin)
{
    SwitchSkinStyle(skin);
}
