#include "PropertiesDialog.h"

#include "Document.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr qreal millimetresPerUnit = 25.4 / 96;
constexpr int valueWidth = 340;
constexpr int mostLength = 400;

void addRow(QFormLayout *form, const QString &name, const QString &value)
{
    auto *label = new QLabel(value.left(mostLength));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(valueWidth);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    form->addRow(name + QStringLiteral("："), label);
}

QString sizeOf(const Document &document, int page)
{
    const QSizeF size = document.sizeOf(page) * millimetresPerUnit;
    return QStringLiteral("%1 × %2 毫米（第 %3 页）")
        .arg(qRound(size.width()))
        .arg(qRound(size.height()))
        .arg(page + 1);
}

void addFile(QFormLayout *form, const Document &document)
{
    if (document.isGenerated()) {
        addRow(form, QStringLiteral("文档"), document.title());
        addRow(form, QStringLiteral("来源"), QStringLiteral("页面由程序生成"));
        return;
    }
    const OfdFile &file = document.file();
    addRow(form, QStringLiteral("文件"), QDir::toNativeSeparators(document.fileName()));
    addRow(form, QStringLiteral("大小"), QLocale().formattedDataSize(file.archive.size()));
    for (const auto &entry : file.information)
        addRow(form, entry.first, entry.second);
}

} // namespace

PropertiesDialog::PropertiesDialog(const Document &document, int currentPage, QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(QStringLiteral("属性"));
    auto *form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignTop);
    addFile(form, document);
    addRow(form, QStringLiteral("页数"), QString::number(document.pageCount()));
    addRow(form, QStringLiteral("页面尺寸"), sizeOf(document, currentPage));
    addRow(form, QStringLiteral("字数"), QString::number(document.characterCount()));
    addRow(form, QStringLiteral("批注"), QString::number(document.marks().size()));
    if (!document.file().leftOut.isEmpty())
        addRow(form, QStringLiteral("提示"), document.file().leftOut);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setText(QStringLiteral("关闭"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
}
