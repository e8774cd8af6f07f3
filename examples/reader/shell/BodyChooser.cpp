// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/BodyChooser.h"

#include "document/Document.h"
#include "panels/LanguageFollower.h"

namespace {

constexpr int widestName = 16; // Characters.

} // namespace

BodyChooser::BodyChooser(const Document &document, QWidget *parent)
    : QComboBox(parent)
    , m_document(document)
{
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(widestName);
    LanguageFollower::attach(this, [this] {
        setAccessibleName(tr("文件中的文档"));
        setToolTip(tr("此文件含有多个文档"));
    });
    connect(&document, &Document::pagesChanged, this, &BodyChooser::refresh);
    connect(this, QOverload<int>::of(&QComboBox::activated), this, &BodyChooser::bodyChosen);
    refresh();
}

void BodyChooser::refresh()
{
    clear();
    const auto ofd = m_document.file().document;
    setVisible(ofd && ofd->bodies.size() > 1);
    if (!ofd)
        return;
    for (int i = 0; i < ofd->bodies.size(); ++i)
        addItem(QStringLiteral("%1　%2").arg(i + 1).arg(ofd->bodies.at(i)));
    setCurrentIndex(ofd->body);
}
