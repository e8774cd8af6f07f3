// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/find/FoundModel.h"

#include <QStringList>

FoundModel::FoundModel(LineOf lineOf, QObject *parent)
    : QAbstractListModel(parent)
    , m_lineOf(std::move(lineOf))
{
}

void FoundModel::setCommands(std::vector<std::size_t> commands)
{
    beginResetModel();
    m_commands = std::move(commands);
    endResetModel();
}

int FoundModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_commands.size());
}

QVariant FoundModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::AccessibleTextRole))
        return {};

    const FoundLine found = line(index.row());
    if (role == Qt::DisplayRole)
        return found.text;
    QStringList parts{found.text, found.where, found.key};
    if (!found.isEnabled)
        parts.append(found.reason.isEmpty() ? tr("不可用") : found.reason);
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}
