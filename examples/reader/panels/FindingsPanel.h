// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <tools/check/DescriptionCheck.h>

#include <QDockWidget>

class QStackedWidget;
class QTableWidget;

/** Lists the findings about a description with line, column, severity and message. */
class FindingsPanel : public QDockWidget
{
    Q_OBJECT

public:
    /** @param emptyNotice is shown instead of an empty list. */
    explicit FindingsPanel(const QString &emptyNotice, QWidget *parent = nullptr);

    /** @param subject The name of what was checked, for the title. */
    void setFindings(const QString &subject, const QVector<Finding> &findings);

private:
    void buildTable();
    void addRow(const Finding &finding);

    QStackedWidget *m_stack;
    QTableWidget *m_table;
};
