// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/FindingsPanel.h"

#include "panels/LanguageFollower.h"

#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QStackedWidget>
#include <QStyle>
#include <QTableWidget>

#include <algorithm>

namespace {

enum Column
{
    LineColumn,
    ColumnColumn,
    SeverityColumn,
    SentenceColumn,
    ColumnCount
};

constexpr Qt::Alignment numberAlignment = Qt::AlignRight | Qt::AlignVCenter;

QString severityName(Severity severity)
{
    switch (severity) {
    case Severity::Note:
        return FindingsPanel::tr("提示");
    case Severity::Warning:
        return FindingsPanel::tr("警告");
    case Severity::Error:
        break;
    }
    return FindingsPanel::tr("错误");
}

QStyle::StandardPixmap severityIcon(Severity severity)
{
    switch (severity) {
    case Severity::Note:
        return QStyle::SP_MessageBoxInformation;
    case Severity::Warning:
        return QStyle::SP_MessageBoxWarning;
    case Severity::Error:
        break;
    }
    return QStyle::SP_MessageBoxCritical;
}

/** The number of findings by severity, such as "2 errors, 1 note". */
QString summaryOf(const QVector<Finding> &findings)
{
    QStringList counts;
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
        const auto count =
            std::count_if(findings.begin(), findings.end(), [severity](const Finding &finding) {
                return finding.severity == severity;
            });
        if (count > 0)
            counts.append(FindingsPanel::tr("%1 %2").arg(severityName(severity)).arg(count));
    }
    return counts.join(FindingsPanel::tr("，"));
}

} // namespace

FindingsPanel::FindingsPanel(const QString &emptyNotice, QWidget *parent)
    : QDockWidget(parent)
    , m_stack(new QStackedWidget)
    , m_table(new QTableWidget(0, ColumnCount))
{
    setObjectName(QStringLiteral("findings"));
    // Not closable: without the findings it would be unclear why the toolbar is not rebuilt.
    setFeatures(DockWidgetMovable | DockWidgetFloatable);
    buildTable();
    auto *notice = new QLabel(emptyNotice);
    notice->setAlignment(Qt::AlignCenter);
    m_stack->addWidget(notice);
    m_stack->addWidget(m_table);
    setWidget(m_stack);
}

void FindingsPanel::buildTable()
{
    LanguageFollower::attach(m_table, [this] {
        m_table->setAccessibleName(tr("检查结果"));
        m_table->setHorizontalHeaderLabels({tr("行"), tr("列"), tr("级别"), tr("说明")});
    });
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setFrameShape(QFrame::NoFrame);
    m_table->setShowGrid(false);
    m_table->setAlternatingRowColors(true);
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();

    QHeaderView *header = m_table->horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(SentenceColumn, QHeaderView::Stretch);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (const Column column : {LineColumn, ColumnColumn})
        m_table->horizontalHeaderItem(column)->setTextAlignment(numberAlignment);
    // The wrapping of the sentences depends on the final width of their column.
    connect(header, &QHeaderView::sectionResized, m_table, &QTableWidget::resizeRowsToContents,
            Qt::QueuedConnection);
}

void FindingsPanel::setFindings(const QString &subject, const QVector<Finding> &findings)
{
    setWindowTitle(findings.isEmpty() ? tr("检查结果：%1").arg(subject)
                                      : tr("检查结果：%1（%2）").arg(subject, summaryOf(findings)));
    // The scroll position is kept for a user who fixes one finding after the other.
    const int place = m_table->verticalScrollBar()->value();
    m_table->setRowCount(0);
    for (const Finding &finding : findings)
        addRow(finding);
    m_table->resizeRowsToContents();
    m_table->verticalScrollBar()->setValue(place);
    m_stack->setCurrentIndex(findings.isEmpty() ? 0 : 1);
}

void FindingsPanel::addRow(const Finding &finding)
{
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    const auto add = [this, row](Column column, const QString &text) {
        auto *item = new QTableWidgetItem(text);
        m_table->setItem(row, column, item);
        return item;
    };
    const auto addNumber = [&add](Column column, int number) {
        // A finding about the whole file has no line.
        add(column, number > 0 ? QString::number(number) : QString())
            ->setTextAlignment(numberAlignment);
    };
    addNumber(LineColumn, finding.line);
    addNumber(ColumnColumn, finding.column);
    add(SeverityColumn, severityName(finding.severity))
        ->setIcon(style()->standardIcon(severityIcon(finding.severity)));
    add(SentenceColumn, finding.message)->setToolTip(finding.id);
}
