// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/PropertiesDialog.h"

#include "document/Document.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include <atomic>
#include <memory>

namespace {

constexpr int valueWidth = 340;
constexpr int mostLength = 400;

QLabel *addRow(QFormLayout *form, const QString &name, const QString &value)
{
    auto *label = new QLabel(value.left(mostLength));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(valueWidth);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    form->addRow(PropertiesDialog::tr("%1：").arg(name), label);
    return label;
}

QString sizeOf(const Document &document, int page)
{
    const QSizeF size = document.sizeOf(page) / unitsPerMillimetre;
    return PropertiesDialog::tr("%1 × %2 毫米（第 %3 页）")
        .arg(qRound(size.width()))
        .arg(qRound(size.height()))
        .arg(page + 1);
}

void addFile(QFormLayout *form, const Document &document)
{
    if (document.isGenerated()) {
        addRow(form, PropertiesDialog::tr("文档"), document.title());
        addRow(form, PropertiesDialog::tr("来源"), PropertiesDialog::tr("页面由程序生成"));
        return;
    }
    const OfdFile &file = document.file();
    addRow(form, PropertiesDialog::tr("文件"), QDir::toNativeSeparators(document.fileName()));
    addRow(form, PropertiesDialog::tr("大小"), QLocale().formattedDataSize(file.archive.size()));
    for (const auto &entry : file.information)
        addRow(form, entry.first, entry.second);
}

} // namespace

PropertiesDialog::PropertiesDialog(const Document &document, int currentPage, QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("属性"));
    auto *form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignTop);
    addFile(form, document);
    addRow(form, tr("页数"), QString::number(document.pageCount()));
    addRow(form, tr("页面尺寸"), sizeOf(document, currentPage));
    countCharacters(document, addRow(form, tr("字数"), tr("正在统计…")));
    addRow(form, tr("批注"), QString::number(document.marks().size()));
    const QString refusals = refusalsOf(document.file().permissions);
    if (!refusals.isEmpty())
        addRow(form, tr("权限"), refusals);
    const QString leftOut = document.file().leftOut();
    if (!leftOut.isEmpty())
        addRow(form, tr("提示"), leftOut);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setText(tr("关闭"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
}

/** All texts are read for it, so the number appears afterwards. */
void PropertiesDialog::countCharacters(const Document &document, QLabel *label)
{
    const auto count = std::make_shared<std::atomic<qint64>>(0);
    connect(&m_walk, &TextWalk::stepped, label, [this, label, count] {
        label->setText(m_walk.isActive() ? tr("%1（正在统计…）").arg(qint64(*count))
                                         : QString::number(*count));
    });
    m_walk.start(document.pages(), 0, true, [count](int, const Page &page) {
        for (const TextLine &line : page.lines)
            *count += line.length;
        return true;
    });
}
