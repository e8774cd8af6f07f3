// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/handwrite/MRHandWriteDialog.h"

#include "toolbar/QtCompat.h"
#include "toolbar/handwrite/InkPictures.h"
#include "toolbar/skin/Appearance.h"
#include "toolbar/skin/SchemePalette.h"
#include "toolbar/skin/StaticResources.h"
#include "ui_HandWriteDialog.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace {

constexpr QSize swatchSize(38, 38);
constexpr QSize trackIconSize(60, 40);
constexpr int defaultMaximumThickness = 10;
constexpr int defaultThickness = 8;
constexpr int opacitySteps = 4;
constexpr char colourProperty[] = "swatchColour";

struct NamedColour
{
    Qt::GlobalColor colour;
    const char *name;
};

/** The default swatches in their order; the names are what a screen reader says. */
constexpr NamedColour defaultColours[] = {
    {Qt::red, QT_TRANSLATE_NOOP("MRHandWriteDialog", "红色")},
    {Qt::green, QT_TRANSLATE_NOOP("MRHandWriteDialog", "绿色")},
    {Qt::yellow, QT_TRANSLATE_NOOP("MRHandWriteDialog", "黄色")},
    {Qt::black, QT_TRANSLATE_NOOP("MRHandWriteDialog", "黑色")},
    {Qt::white, QT_TRANSLATE_NOOP("MRHandWriteDialog", "白色")},
    {Qt::blue, QT_TRANSLATE_NOOP("MRHandWriteDialog", "蓝色")},
    {Qt::darkRed, QT_TRANSLATE_NOOP("MRHandWriteDialog", "深红色")},
    {Qt::magenta, QT_TRANSLATE_NOOP("MRHandWriteDialog", "品红色")},
    {Qt::darkGreen, QT_TRANSLATE_NOOP("MRHandWriteDialog", "深绿色")},
    {Qt::cyan, QT_TRANSLATE_NOOP("MRHandWriteDialog", "青色")},
};

QString colourName(const QColor &colour)
{
    const auto known =
        std::find_if(std::begin(defaultColours), std::end(defaultColours),
                     [&](const NamedColour &entry) { return QColor(entry.colour) == colour; });
    return known == std::end(defaultColours) ? colour.name() : MRHandWriteDialog::tr(known->name);
}

/** The colour of a link that can be read on a ground, which palettes often keep at plain blue. */
QColor linkColourOn(const QColor &ground)
{
    constexpr int darkBelow = 128;
    return qGray(ground.rgb()) < darkBelow ? QColor(0x6c, 0xb6, 0xff) : QColor(0x0b, 0x5c, 0xad);
}

/** Checks @p button, or none if it is null. An exclusive group would refuse to uncheck its last. */
void checkOnly(QButtonGroup *group, const QAbstractButton *button)
{
    group->setExclusive(false);
    const QList<QAbstractButton *> members = group->buttons();
    for (QAbstractButton *member : members) {
        member->setChecked(member == button);
        // As after a click, the tab key enters the group at the checked button.
        if (button)
            member->setFocusPolicy(member == button ? Qt::StrongFocus : Qt::ClickFocus);
    }
    group->setExclusive(true);
}

} // namespace

MRHandWriteDialog::MRHandWriteDialog(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::HandWriteDialog>())
{
    keepStaticResources();
    m_ui->setupUi(this);
    // The hint alone would leave no window type, and lay a dialog with a parent into that parent.
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    collectButtons();
    // "DotLine" is no border style of sheets: the form's own sheet shows what is checked.
    setStyleSheet(QStringLiteral("QPushButton:checked{border:1px DotLine lightgray;} "
                                 "QDialog{border:1px solid lightgray;}"));
    connectControls();
    tintLink();
    new SchemePalette(this);

    QList<QColor> colours;
    for (const NamedColour &entry : defaultColours)
        colours.append(entry.colour);
    SetCommonColor(colours);

    m_ui->spliderThickness->setMaximum(defaultMaximumThickness);
    m_ui->spliderThickness->setValue(defaultThickness);
}

MRHandWriteDialog::~MRHandWriteDialog() = default;

void MRHandWriteDialog::collectButtons()
{
    m_colourButtons = {m_ui->pushButtonColor1, m_ui->pushButtonColor2, m_ui->pushButtonColor3,
                       m_ui->pushButtonColor4, m_ui->pushButtonColor5, m_ui->pushButtonColor6,
                       m_ui->pushButtonColor7, m_ui->pushButtonColor8, m_ui->pushButtonColor9,
                       m_ui->pushButtonColor10};
    m_trackButtons = {m_ui->pushButtonTrack1, m_ui->pushButtonTrack2, m_ui->pushButtonTrack3,
                      m_ui->pushButtonTrack4, m_ui->pushButtonTrack5, m_ui->pushButtonTrack6};

    // The number of an opacity button is the value that a track has for it.
    QButtonGroup *group = m_ui->buttonOpacityGroup;
    group->setId(m_ui->pushButtonOpacity25p, 0);
    group->setId(m_ui->pushButtonOpacity50p, 1);
    group->setId(m_ui->pushButtonOpacity75p, 2);
    group->setId(m_ui->pushButtonOpacity100p, 3);
}

void MRHandWriteDialog::connectControls()
{
    connect(m_ui->spliderThickness, &QSlider::valueChanged, m_ui->labelThickness,
            qOverload<int>(&QLabel::setNum));
    connect(m_ui->spliderThickness, &QSlider::valueChanged, this,
            &MRHandWriteDialog::updatePreview);
    connect(m_ui->buttonColorGroup, qOverload<QAbstractButton *>(&QButtonGroup::buttonClicked),
            this, [this] {
                m_trackInk = QColor();
                updateSamples();
            });
    connect(m_ui->buttonOpacityGroup, qOverload<QAbstractButton *>(&QButtonGroup::buttonClicked),
            this, &MRHandWriteDialog::updatePreview);
    // The size of the preview is known only once the layout has run.
    m_ui->labelPreview->installEventFilter(this);
}

void MRHandWriteDialog::SetCommonColor(QList<QColor> &colours)
{
    m_colours = colours;
    const auto count = std::min(m_colourButtons.size(), m_colours.size());
    for (int i = 0; i < count; ++i)
        dressSwatch(m_colourButtons.at(i), m_colours.at(i));
    updateSamples();
}

void MRHandWriteDialog::dressSwatch(QPushButton *button, const QColor &colour)
{
    button->setIcon(InkPictures::swatchIcon(colour, devicePixelRatioF()));
    button->setText(QString());
    button->setIconSize(InkPictures::swatchIconSize);
    button->setFixedSize(swatchSize);
    button->setFlat(true);
    button->setCheckable(true);

    button->setProperty(colourProperty, colour);
    nameSwatch(button);
}

void MRHandWriteDialog::nameSwatch(QPushButton *button)
{
    const QString name = colourName(button->property(colourProperty).value<QColor>());
    button->setAccessibleName(name);
    button->setToolTip(name);
}

void MRHandWriteDialog::SetCommonTrackInfo(QList<Track *> &tracks)
{
    m_tracks = tracks;
    dressTrackButtons();

    const auto selected = std::find_if(m_tracks.cbegin(), m_tracks.cend(),
                                       [](const Track *track) { return track && track->selected; });
    if (selected != m_tracks.cend())
        showTrack(static_cast<int>(selected - m_tracks.cbegin()));
}

void MRHandWriteDialog::dressTrackButtons()
{
    for (int i = 0; i < m_trackButtons.size(); ++i) {
        // Deliberate: two or more tracks end the loop at once, so only a single track gets a
        // picture.
        if (m_tracks.size() > i + 1)
            break;
        const Track *track = m_tracks.value(i);
        if (!track)
            continue;
        QPushButton *button = m_trackButtons.at(i);
        button->setText(QString());
        button->setIcon(QIcon(track->icon));
        button->setIconSize(trackIconSize);
        button->setCheckable(true);
        button->setFlat(true);
    }
}

void MRHandWriteDialog::showTrack(int index)
{
    const Track *track = m_tracks.at(index);
    // Deliberate: the first track's button stays unchecked while its track is the current one.
    checkOnly(m_ui->buttonTrackGroup, index != 0 ? m_trackButtons.value(index) : nullptr);

    const bool isPreset = m_colours.contains(track->colour);
    // Deliberate: the swatch is found by the track's place in its list, not by the colour's place.
    checkOnly(m_ui->buttonColorGroup, isPreset ? m_colourButtons.value(index) : nullptr);

    QSlider *slider = m_ui->spliderThickness;
    slider->setMaximum(std::max(slider->minimum(), track->maximumThickness));
    slider->setValue(track->thickness);
    checkOnly(m_ui->buttonOpacityGroup, m_ui->buttonOpacityGroup->button(track->opacity));

    m_trackInk = track->colour;
    updateSamples();
}

QList<Track *> MRHandWriteDialog::GetCommonTrackInfo()
{
    return m_tracks;
}

void MRHandWriteDialog::SetRegionSize(int size)
{
    m_regionSize = size;
}

int MRHandWriteDialog::GetRegionSize()
{
    return m_regionSize;
}

QColor MRHandWriteDialog::inkColour() const
{
    if (m_trackInk.isValid())
        return m_trackInk;
    const QAbstractButton *swatch = m_ui->buttonColorGroup->checkedButton();
    return swatch ? swatch->property(colourProperty).value<QColor>() : QColor();
}

void MRHandWriteDialog::updateSamples()
{
    const QColor ink = inkColour();
    for (int step = 0; step < opacitySteps; ++step) {
        QAbstractButton *button = m_ui->buttonOpacityGroup->button(step);
        button->setIcon(InkPictures::opacityIcon(ink.isValid() ? ink : QColor(Qt::black),
                                                 qreal(step + 1) / opacitySteps,
                                                 devicePixelRatioF()));
        button->setIconSize(InkPictures::opacityIconSize);
    }
    updatePreview();
}

void MRHandWriteDialog::updatePreview()
{
    QLabel *preview = m_ui->labelPreview;
    QColor ink = inkColour();
    const int thickness = m_ui->spliderThickness->value();
    const QRect area(QPoint(0, 0), preview->contentsRect().size());
    if (!ink.isValid() || thickness <= 0 || area.isEmpty()) {
        preview->setText(tr("图片预览区域"));
        return;
    }

    const int step = m_ui->buttonOpacityGroup->checkedId();
    ink.setAlphaF(step < 0 ? 1.0 : qreal(step + 1) / opacitySteps);
    QPixmap pixmap = InkPictures::transparentPixmap(area.size(), preview->devicePixelRatioF());
    QPainter painter(&pixmap);
    InkPictures::paintChequeredGround(painter, area, ink);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(InkPictures::sampleStroke(area.size()),
                       QPen(ink, thickness, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.end();
    preview->setPixmap(pixmap);
}

void MRHandWriteDialog::mousePressEvent(QMouseEvent *event)
{
    m_dragOffset = QtCompat::globalPosition(event) - pos();
}

void MRHandWriteDialog::mouseMoveEvent(QMouseEvent *event)
{
    // A control that took the press may still let the moves through; they are no dragging.
    if (m_dragOffset)
        move(QtCompat::globalPosition(event) - *m_dragOffset);
}

void MRHandWriteDialog::mouseReleaseEvent(QMouseEvent *)
{
    m_dragOffset.reset();
}

bool MRHandWriteDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_ui->labelPreview && event->type() == QEvent::Resize)
        updatePreview();
    return QDialog::eventFilter(watched, event);
}

void MRHandWriteDialog::tintLink()
{
    // Neither the label's palette nor a sheet reaches a link of a rich text.
    static const QRegularExpression link(QStringLiteral("<a (style=\"[^\"]*\" )?"));
    const SchemeColours *scheme = Appearance::coloursFor(this);
    const QColor colour =
        scheme ? scheme->accent : linkColourOn(QGuiApplication::palette().color(QPalette::Base));
    QString text = m_ui->labelOtherSelect->text();
    text.replace(link, QStringLiteral("<a style=\"color:%1\" ").arg(colour.name()));
    m_ui->labelOtherSelect->setText(text);
}

void MRHandWriteDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        tintLink();
    if (event->type() != QEvent::LanguageChange)
        return;

    // The form would write its texts beside the pictures of tracks.
    QList<QPushButton *> pictured;
    for (QPushButton *button : std::as_const(m_trackButtons)) {
        if (button->text().isEmpty())
            pictured.append(button);
    }
    m_ui->retranslateUi(this);
    tintLink();
    for (QPushButton *button : std::as_const(pictured))
        button->setText(QString());
    for (QPushButton *button : std::as_const(m_colourButtons))
        nameSwatch(button);
    updatePreview();
}
