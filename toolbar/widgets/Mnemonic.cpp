// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/widgets/Mnemonic.h"

#include <QRegularExpression>

QString withoutMnemonic(QString text)
{
    static const QRegularExpression inBrackets(QStringLiteral("\\s*\\(&.\\)"));
    static const QRegularExpression mark(QStringLiteral("&(.)"));
    text.remove(inBrackets);
    return text.replace(mark, QStringLiteral("\\1")).trimmed();
}
