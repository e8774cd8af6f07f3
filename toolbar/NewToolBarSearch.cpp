#include "toolbar/NewToolBar.h"

#include "toolbar/QtCompat.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/DescriptionParser.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/widgets/MRSearchBar.h"
#include "toolbar/widgets/ToolTipCard.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int backwards = 0;
constexpr int forwards = 1;

constexpr QLatin1String foldName = QtCompat::latin1("t_fold");
constexpr QLatin1String unfoldName = QtCompat::latin1("t_extend");
constexpr QLatin1String noIndicatorRule =
    QtCompat::latin1("QPushButton::menu-indicator{image:none;}");

/** Gives a button that shows only an icon its tooltip and, from it, its accessible name. */
void setTip(QPushButton *button, const QString &tip)
{
    button->setToolTip(QString());
    NewToolBar::SetWidgetToolTip(button, tip);
    if (button->text().isEmpty())
        button->setAccessibleName(toolTipTitle(tip));
}

bool mentions(const QString &name, const char *word)
{
    return name.contains(QLatin1String(word), Qt::CaseInsensitive);
}

QString activeSetButtonSheet(const QString &textColour, const QString &ground)
{
    return noIndicatorRule
           + QStringLiteral(
                 "QPushButton{color:%1;background-color:%2;border: none;border-radius:4px;}")
                 .arg(textColour, ground);
}

QString idleSetButtonSheet(const QString &textColour, const QString &hover, const QString &pressed)
{
    return noIndicatorRule
           + QStringLiteral("QPushButton{   background:transparent;}"
                            "QPushButton:hover{ background-color:%2;}"
                            "QPushButton:pressed{color:%1;background-color:%3;border: "
                            "none;border-radius:4px;}")
                 .arg(textColour, hover, pressed);
}

/** The elements of the search section that the field is made of; each may be absent. */
struct SearchFieldRecords
{
    const Controller *label = nullptr;
    const Controller *field = nullptr;
    const Controller *previous = nullptr;
    const Controller *next = nullptr;
};

SearchFieldRecords searchFieldRecords(const QList<Controller *> &records)
{
    SearchFieldRecords found;
    for (const Controller *record : records) {
        if (record->type == QLatin1String("label"))
            found.label = record;
        else if (record->type == QLatin1String("lineedit"))
            found.field = record;
        else if (record->type != QLatin1String("button"))
            continue;
        else if (mentions(record->name, "next"))
            found.next = record;
        else if (mentions(record->name, "prev"))
            found.previous = record;
    }
    return found;
}

} // namespace

MRSearchBar *NewToolBar::CreateSearchBar()
{
    const SearchFieldRecords records = searchFieldRecords(sectionRecords(Section::searchBar));
    if (!records.previous && !records.next)
        return nullptr;

    QLabel *label = records.label ? createSearchLabel(*records.label) : nullptr;
    QPushButton *previous = records.previous ? createDirectionButton(*records.previous) : nullptr;
    QPushButton *next = records.next ? createDirectionButton(*records.next) : nullptr;
    auto *bar = new MRSearchBar(this, label, previous, next, true);
    bar->SetButtonProperty("module", QStringLiteral("searchbutton"));
    if (records.field) {
        bar->setObjectName(records.field->name);
        bar->setPlaceholderText(records.field->prompt);
    }
    connect(bar, &MRSearchBar::returnPressed, this, &NewToolBar::Inner_DoSearchBarActionSlot);
    connect(bar, &MRSearchBar::DoActiveSetButton, this, &NewToolBar::Inner_DoActiveSetButtonSlot);
    return bar;
}

QLabel *NewToolBar::createSearchLabel(const Controller &record)
{
    auto *label = new QLabel(record.text);
    label->setObjectName(record.name);
    const QIcon labelIcon = icon(record.icon);
    if (!labelIcon.isNull())
        label->setPixmap(labelIcon.pixmap(scaledIconSize(16.0)));
    return label;
}

QPushButton *NewToolBar::createDirectionButton(const Controller &record)
{
    QPushButton *button = createTopLineButton(record, nullptr);
    button->setEnabled(record.usable);
    connect(button, &QPushButton::clicked, this, &NewToolBar::Inner_DoSearchBarActionSlot);
    return button;
}

QPushButton *NewToolBar::CreateSearchSetButton()
{
    const QList<Controller *> records = sectionRecords(Section::searchBar);
    const auto found = std::find_if(records.begin(), records.end(), [](const Controller *record) {
        return record->type == QLatin1String("button") && mentions(record->name, "st_set");
    });
    if (found == records.end())
        return nullptr;

    const Controller &record = **found;
    QPushButton *button = createTopLineButton(record, this);
    button->setProperty("module", "toolbarbutton");
    button->setCheckable(record.checkable);

    auto *menu = new QMenu(button);
    menu->setProperty("intoolbar", "true");
    menu->setProperty("toolbar", "true");
    AppendSubMenu(menu, record.children, nullptr);
    menu->setProperty("module", "toolbarmenu");
    menu->setObjectName(record.name);
    button->setMenu(menu);
    button->setStyleSheet(noIndicatorRule);
    return button;
}

void NewToolBar::Inner_DoActiveSetButtonSlot(bool active)
{
    if (!m_searchSetButton)
        return;

    const bool isCompact = Skin::isLum();
    const QString textColour = isCompact ? QStringLiteral("#000000") : QStringLiteral("#333333");
    const QString pressed = isCompact ? QStringLiteral("#1368AD") : QStringLiteral("#1460AB");
    const QString ground =
        isCompact ? QStringLiteral("rgb(219,222,227)") : QStringLiteral("#1460AB");
    if (active)
        m_searchSetButton->setStyleSheet(activeSetButtonSheet(textColour, ground));
    else if (isCompact)
        m_searchSetButton->setStyleSheet(QString()); // Back to the toolbar's own sheet.
    else
        m_searchSetButton->setStyleSheet(idleSetButtonSheet(textColour, ground, pressed));
}

void NewToolBar::Inner_DoUpdateSearchContentSlot(QString content)
{
    m_searchText = content;
}

void NewToolBar::Inner_DoSearchBarActionSlot()
{
    const QObject *from = sender();
    if (!from)
        return;

    const QString name = from->objectName();
    const auto *option = qobject_cast<const QAction *>(from);
    if (name.contains(QLatin1String("gis"))) {
        searchFrom(m_extraSearchEdit, from, true);
    } else if (mentions(name, "wholeword")) {
        m_searchWholeWord = option && option->isChecked();
    } else if (mentions(name, "nocase")) {
        m_searchNoCase = option && option->isChecked();
    } else {
        searchFrom(m_searchBar, from, false);
    }
}

void NewToolBar::searchFrom(const QLineEdit *field, const QObject *from, bool isNew)
{
    if (!field || field->text().isEmpty())
        return;

    // The host may delete this toolbar while it searches, or search for something else.
    const QPointer<NewToolBar> self(this);
    const QPointer<const QObject> guarded(from);
    const QString name = from->objectName();
    QString text = field->text();
    m_searchText = text;
    if (mentions(name, "prev"))
        emitSearch(text, backwards, isNew);
    else if (mentions(name, "next"))
        emitSearch(text, forwards, isNew);
    if (!self || !mentions(name, "input"))
        return;

    // The field in which Return was pressed need not be the one that allowed the search.
    if (const auto *ownField = qobject_cast<const QLineEdit *>(guarded.data()))
        text = ownField->text();
    m_searchText = text;
    if (!text.isEmpty())
        emitSearch(text, forwards, isNew);
}

void NewToolBar::emitSearch(const QString &text, int direction, bool isNew)
{
    const QPointer<NewToolBar> self(this);
    m_searchDirection = direction;
    m_searchNew = isNew;
    SearchOption option;
    option.content = text;
    option.direction = m_searchDirection;
    option.wholeWord = m_searchWholeWord;
    option.noCase = m_searchNoCase;
    option.newSearch = m_searchNew;
    Q_EMIT DoSearchContent(option);
    if (self) {
        m_searchDirection = forwards;
        m_searchNew = false;
    }
}

QList<QWidget *> NewToolBar::CreateAddtionalControl()
{
    QList<QWidget *> controls;
    const QList<Controller *> records = sectionRecords(Section::additional);
    for (const Controller *record : records) {
        if (record->type != QLatin1String("button"))
            continue;
        QPushButton *button = createAdditionalButton(*record);
        controls.append(button);
        if (record->name == foldName) {
            m_foldButton = button;
            m_unfoldButton = createUnfoldButton(button, *record);
            controls.append(m_unfoldButton);
        }
    }
    return controls;
}

QPushButton *NewToolBar::createAdditionalButton(const Controller &record)
{
    QPushButton *button = createTopLineButton(record, this);
    button->setProperty("module", "toolbarbutton");
    button->setCheckable(record.checkable);
    button->setChecked(record.checked);
    connect(button, &QPushButton::clicked, this, &NewToolBar::Inner_DoAddtionalControlActionSlot);
    return button;
}

QPushButton *NewToolBar::createUnfoldButton(QPushButton *foldButton, const Controller &record)
{
    QPushButton *button = createAdditionalButton(record);
    button->setObjectName(unfoldName);
    const QPixmap foldPixmap = foldButton->icon().pixmap(foldButton->iconSize());
    if (!foldPixmap.isNull())
        button->setIcon(QIcon(foldPixmap.transformed(QTransform().rotate(180))));

    const auto separator = record.tooltip.indexOf(QLatin1Char(';'));
    if (separator >= 0) {
        setTip(foldButton, record.tooltip.left(separator));
        setTip(button, record.tooltip.mid(separator + 1));
    }
    // On show while the rows are not, and they are at first.
    button->hide();
    return button;
}

void NewToolBar::Inner_DoAddtionalControlActionSlot()
{
    const auto *button = qobject_cast<QPushButton *>(sender());
    if (!button)
        return;

    const QString name = button->objectName();
    if (mentions(name, "fold"))
        setRowsFolded(true);
    else if (mentions(name, "extend"))
        setRowsFolded(false);
    else if (!name.isEmpty())
        Q_EMIT DoActive(name);
}
