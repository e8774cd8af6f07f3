// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

class QComboBox;
class QString;

/** Gives an entry of the box another text, without a signal. What is typed into the box stays. */
void setChoiceText(QComboBox *box, int index, const QString &text);
