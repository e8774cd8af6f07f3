// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractListModel>
#include <QIcon>

#include <functional>
#include <vector>

/** A command as the list shows it. */
struct FoundLine
{
    QIcon icon;
    bool isIconForTopLine = false;
    QString text;
    QString where;
    QString key;
    bool isEnabled = true;
    QString reason; ///< Why it is not, if that is known.
};

/** The commands found, of which only those on show are asked for. */
class FoundModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using LineOf = std::function<FoundLine(std::size_t command)>;

    FoundModel(LineOf lineOf, QObject *parent);

    void setCommands(std::vector<std::size_t> commands);
    std::size_t command(int row) const { return m_commands.at(static_cast<std::size_t>(row)); }
    FoundLine line(int row) const { return m_lineOf(command(row)); }

    int rowCount(const QModelIndex &parent = {}) const override;
    /** The text, and what a screen reader says. */
    QVariant data(const QModelIndex &index, int role) const override;

private:
    const LineOf m_lineOf;
    std::vector<std::size_t> m_commands;
};
