#include "toolbar/NewToolBar.h"

#include "toolbar/ActionData.h"
#include "toolbar/ControlWidth.h"
#include "toolbar/QtCompat.h"
#include "toolbar/description/Controller.h"
#include "toolbar/description/DescriptionParser.h"
#include "toolbar/fields/PageValidator.h"
#include "toolbar/skin/Skin.h"
#include "toolbar/widgets/DropMenuIndex.h"
#include "toolbar/widgets/FieldKeyFilter.h"
#include "toolbar/widgets/MRDropButton.h"
#include "toolbar/widgets/MRGroupButton.h"
#include "toolbar/widgets/ToolTipCard.h"

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QRegularExpressionValidator>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr QLatin1String promptName = QtCompat::latin1("prompt");
constexpr QLatin1String totalPageLabelName = QtCompat::latin1("d_totalpagelabel");

bool isTag(const Controller &record, const char *tag)
{
    return record.type == QLatin1String(tag);
}

/** Whether a separator that waits is to be placed before this control. */
bool endsSeparatorWait(const Controller &record)
{
    if (!record.visible)
        return false;
    return !isTag(record, "buttongroup")
           || std::any_of(record.children.begin(), record.children.end(),
                          [](const Controller *child) { return child && child->visible; });
}

/** A control of a row with room for a caption below it. */
QWidget *createCaptionedContainer(QWidget *control)
{
    auto *container = new QWidget;
    auto *layout = new QVBoxLayout(container);
    layout->setSpacing(1);
    layout->setContentsMargins(0, 2, 0, 0);
    layout->addWidget(control);
    container->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
    return container;
}

QLabel *addCaption(QWidget *container, const QString &text)
{
    auto *caption = new QLabel(text);
    caption->setObjectName(promptName);
    caption->setAlignment(Qt::AlignCenter);
    container->layout()->addWidget(caption);
    return caption;
}

void setDigitsOnly(QLineEdit *field)
{
    const QRegularExpression digits(QStringLiteral("^[0-9]*$"));
    field->setValidator(new QRegularExpressionValidator(digits, field));
}

/** What a field is called for those who cannot see where it stands. */
QString spokenName(const Controller &record)
{
    return record.tooltip.isEmpty() ? record.text : toolTipTitle(record.tooltip);
}

QString zoomBoxHint()
{
    return QStringLiteral("<font style='font-family:Microsoft YaHei; font-size:10pt;"
                          "background-color:transparent;color:blue;'>%1</font>")
               .arg(QObject::tr("Invalid Char"))
           + QStringLiteral("<br><font style='font-family:Microsoft YaHei;font-size:8pt; "
                            "background-color:transparent;color:black;'>%1</font>")
                 .arg(QObject::tr("Please Input a Number or Point"));
}

/** Makes the described entry of the menu, if there is one, the button's own. */
void takeEntry(MRDropButtonAction *button, QMenu *menu, const Controller &record, QString *tooltip)
{
    QAction *entry = menu->actions().value(record.index - 1);
    if (record.index < 1 || !entry)
        return;

    button->SetAction(entry);
    button->SetText(entry->text());
    if (record.withaction) {
        menu->removeAction(entry);
        if (tooltip->isEmpty())
            *tooltip = entry->text();
    }
}

int menuWidth(const Controller &record, const QMenu *menu, float scale)
{
    if (!menu)
        return ControlWidth::ofEmptyMenu(record.text, scale);

    QStringList entryTexts;
    const QList<QAction *> entries = menu->actions();
    for (const QAction *entry : entries)
        entryTexts.append(entry->text());
    return ControlWidth::ofMenu(record.text, entryTexts, record.index, scale);
}

} // namespace

bool NewToolBar::AddToolBarAction(const QList<Controller *> &records, QToolBar *row, bool ignored,
                                  bool addToRow)
{
    Q_UNUSED(ignored)
    if (records.isEmpty() || !row)
        return false;

    bool isSeparatorPending = false;
    for (const Controller *record : records) {
        if (!record)
            continue;
        CreateActionGroup(record->group, row);
        if (isTag(*record, separatorTag)) {
            isSeparatorPending = true;
            continue;
        }
        if (isSeparatorPending && endsSeparatorWait(*record)) {
            row->addSeparator();
            isSeparatorPending = false;
        }
        addToolBarControl(*record, row, addToRow);
    }
    return true;
}

void NewToolBar::addToolBarControl(const Controller &record, QToolBar *row, bool addToRow)
{
    if (isTag(record, "buttongroup"))
        addButtonGroup(record, row);
    else if (isTag(record, "button"))
        addButton(record, row, addToRow);
    else if (isTag(record, "menu"))
        addMenu(record, row, addToRow);
    else if (isTag(record, "combobox"))
        addComboBox(record, row);
    else if (isTag(record, "label"))
        addLabel(record, row);
    else if (isTag(record, "lineedit"))
        addLineEdit(record, row);
}

void NewToolBar::addButton(const Controller &record, QToolBar *row, bool addToRow)
{
    // One action serves every place where the command stands.
    QAction *action = GetActionInTotal(record.name);
    const bool isNew = !action;
    if (isNew)
        action = createButtonAction(record);

    if (QActionGroup *group = GetActionGroup(record.group))
        group->addAction(action);
    SetWidgetToolTip(action, record.tooltip);
    action->setCheckable(record.checkable);
    action->setChecked(record.checked);
    action->setVisible(record.visible);
    if (addToRow)
        row->addAction(action);
    if (record.doubleclick) {
        ActionData::addDoubleClick(action);
        watchClicks();
    }

    if (QWidget *widget = row->widgetForAction(action)) {
        widget->setAccessibleName(record.text);
        if (!addToRow)
            widget->setFixedWidth(0);
        else if (!Skin::isLum())
            widget->setFixedWidth(ControlWidth::ofButton(record.text, m_scale));
    }
    m_actions.append(action);
    if (isNew)
        connectCommand(action);
}

QAction *NewToolBar::createButtonAction(const Controller &record)
{
    auto *action = new QAction(record.text, this);
    action->setEnabled(record.available && record.usable);
    ActionData::set(action, record.available);
    action->setObjectName(record.name);
    action->setIconVisibleInMenu(true);
    action->setIcon(icon(record.icon));
    return action;
}

void NewToolBar::addMenu(const Controller &record, QToolBar *row, bool addToRow)
{
    auto *action = new MRDropButtonAction(row, this);
    action->SetText(record.switchable ? record.text : record.text + QStringLiteral("  "));
    action->SetIcon(icon(record.icon));
    action->SetCheckable(record.checkable);
    action->SetSwichable(record.switchable);
    action->setVisible(record.visible);
    action->setEnabled(record.available && record.usable);
    action->SetWithAction(record.withaction);
    ActionData::set(action, record.available);

    QString tooltip = record.tooltip;
    QMenu *menu = record.children.isEmpty() ? nullptr : createDropMenu(record);
    if (menu) {
        action->SetMenu(menu);
        takeEntry(action, menu, record, &tooltip);
    }

    if (addToRow)
        row->addAction(action);
    action->setObjectName(record.name);
    m_actions.append(action);
    if (MRDropButton *button = action->GetWidget()) {
        SetWidgetToolTip(button, tooltip);
        button->setFixedWidth(addToRow ? menuWidth(record, menu, m_scale) : 0);
        button->SetName(record.name);
        m_dropButtons.append(button);
        m_dropMenus->add(button);
    }
}

QMenu *NewToolBar::createDropMenu(const Controller &record)
{
    auto *menu = new QMenu(record.text, this);
    menu->setProperty("module", "toolbarmenu");
    menu->setProperty("toolbar", "true");
    menu->setProperty("intoolbar", "true");
    menu->setObjectName(record.name);
    AppendSubMenu(menu, record.children, nullptr);
    return menu;
}

void NewToolBar::addButtonGroup(const Controller &record, QToolBar *row)
{
    // The children's actions come first: the panel's buttons are made of them.
    AddToolBarAction(record.children, row, false, false);
    auto *action = new MRButtonGroup(this);
    action->setDefaultWidget(CreateButtonGroupWidget(record.children, row));
    row->addAction(action);
}

void NewToolBar::addComboBox(const Controller &record, QToolBar *row)
{
    auto *box = new QComboBox;
    box->setEditable(record.editable);
    box->setObjectName(record.name);
    box->setAccessibleName(spokenName(record));
    box->setFocusPolicy(Qt::ClickFocus);
    for (const Controller *item : record.children) {
        box->addItem(QIcon(), item->text, item->name);
        if (!item->text.contains(QLatin1Char('%')))
            box->setEditable(false);
    }
    if (box->count() > 0) {
        box->setView(new QListView);
        if (record.index > 0)
            box->setCurrentIndex(record.index - 1);
        box->setInsertPolicy(QComboBox::InsertAtBottom);
        if (record.name.contains(QLatin1String("zoom"), Qt::CaseInsensitive))
            makeZoomBox(box, record);
    }

    QWidget *container = createCaptionedContainer(box);
    addCaption(container, record.text);
    addRowWidget(container, record, row);
}

void NewToolBar::makeZoomBox(QComboBox *box, const Controller &record)
{
    setTypable(box, box->isEditable() || box->currentText().endsWith(QLatin1Char('%')));
    m_zoomBox = box;
    m_zoomIndex = box->currentIndex();
    m_zoomModes.clear();
    for (const Controller *item : record.children)
        m_zoomModes.append(item->name);
    m_defaultZoomIndex = record.index;
    box->installEventFilter(this);
    box->setToolTip(zoomBoxHint());
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this, box](int index) { Inner_DoSetZoomModeSlot(box->itemText(index)); });
}

void NewToolBar::addLabel(const Controller &record, QToolBar *row)
{
    auto *label = new QLabel(record.text);
    label->setObjectName(record.name);
    if (record.name == totalPageLabelName)
        m_totalPageLabel = label;
    addRowWidget(label, record, row);
}

void NewToolBar::addLineEdit(const Controller &record, QToolBar *row)
{
    auto *field = new QLineEdit;
    setDigitsOnly(field);
    field->setProperty("module", "toolbarinput");
    field->setObjectName(record.name);
    field->setAccessibleName(spokenName(record));
    QWidget *container = createCaptionedContainer(field);
    if (record.name.contains(QLatin1String("gotopage"), Qt::CaseInsensitive)) {
        field->setValidator(new PageValidator(field));
        new FieldKeyFilter(field);
        connect(field, &QLineEdit::returnPressed, this, &NewToolBar::Inner_DoGotoPageSlot);
        m_pageNumberEdit = field;
        m_pagePromptLabel = addCaption(container, record.text);
    }
    addRowWidget(container, record, row);
}

void NewToolBar::addRowWidget(QWidget *widget, const Controller &record, QToolBar *row)
{
    QAction *action = row->addWidget(widget);
    action->setObjectName(record.name);
    action->setVisible(record.visible);
    m_actions.append(action);
}
