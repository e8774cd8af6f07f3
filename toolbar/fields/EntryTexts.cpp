// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/fields/EntryTexts.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

namespace {

/** Keeps what has been typed into a list, which Qt replaces with the text of the entry. */
class TypedText
{
public:
    explicit TypedText(const QComboBox *box)
        : m_field(box->lineEdit())
        , m_blocker(m_field)
    {
        if (!m_field || m_field->text() == box->itemText(box->currentIndex()))
            return;
        m_isTyped = true;
        m_text = m_field->text();
        m_cursor = m_field->cursorPosition();
        m_selectionStart = m_field->selectionStart();
        m_selectionLength = static_cast<int>(m_field->selectedText().size());
    }

    ~TypedText()
    {
        if (!m_isTyped || m_field->text() == m_text)
            return;
        m_field->setText(m_text);
        m_field->setCursorPosition(m_cursor);
        if (m_selectionStart >= 0)
            m_field->setSelection(m_selectionStart, m_selectionLength);
    }
    Q_DISABLE_COPY_MOVE(TypedText)

private:
    QLineEdit *m_field;
    QSignalBlocker m_blocker;
    bool m_isTyped = false;
    QString m_text;
    int m_cursor = 0;
    int m_selectionStart = -1;
    int m_selectionLength = 0;
};

/** Qt measures the texts of a list when it is first shown, and keeps to that. */
void measureAgain(QComboBox *box)
{
    const auto policy = box->sizeAdjustPolicy();
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    box->setSizeAdjustPolicy(policy);
}

} // namespace

void setEntryTexts(QComboBox *box, const QStringList &texts)
{
    const QSignalBlocker blocker(box);
    const TypedText typed(box);
    bool isOther = false;
    for (int i = 0; i < texts.size() && i < box->count(); ++i) {
        if (box->itemText(i) == texts.at(i))
            continue;
        box->setItemText(i, texts.at(i));
        isOther = true;
    }
    if (isOther)
        measureAgain(box);
}
