// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "shell/LivePreview.h"

#include "panels/FindingsPanel.h"
#include "shell/Description.h"
#include "shell/Language.h"
#include "shell/ReaderWindow.h"

#ifdef READER_HAS_CHECKER
#include "tools/check/HostResources.h"
#endif

#include <QFileInfo>
#include <QResource>

#include <algorithm>

namespace {

Finding finding(const DescriptionFault &fault)
{
    return {Severity::Error, QStringLiteral("unreadable"), fault.line, fault.column, fault.message};
}

#ifdef READER_HAS_CHECKER
QString emptyNotice()
{
    return LivePreview::tr("没有发现问题");
}

QVector<Finding> check(const QByteArray &content, const QString &skin)
{
    CheckOptions options;
    options.skin = skin;
    options.hasToolTipWords = true; // ReaderWindow sets the skin key.
    return checkDescription(content, options);
}

QString loadResource(const QString &path)
{
    return HostResources::load(path);
}
#else
QString emptyNotice()
{
    return LivePreview::tr("文件可以读取；未编入描述检查器，不作进一步检查");
}

QVector<Finding> check(const QByteArray & /*content*/, const QString & /*skin*/)
{
    return {};
}

QString loadResource(const QString &path)
{
    return QResource::registerResource(path)
               ? QString()
               : QStringLiteral("cannot load '%1'; without the checker only files made with "
                                "rcc --binary are loaded")
                     .arg(path);
}
#endif

/** Sorts errors before notes, which are numerous. */
bool isWorse(const Finding &one, const Finding &other)
{
    return one.severity > other.severity;
}

bool hasErrors(const QVector<Finding> &findings)
{
    return std::any_of(findings.begin(), findings.end(),
                       [](const Finding &finding) { return finding.severity == Severity::Error; });
}

} // namespace

LivePreview::LivePreview(ReaderWindow &window, const Options &options)
    : m_window(window)
    , m_options(options)
    , m_panel(new FindingsPanel(emptyNotice(), &window))
    , m_watcher(options.description)
{
    window.addDockWidget(Qt::BottomDockWidgetArea, m_panel);
    connect(&m_watcher, &FileWatcher::fileRead, this, &LivePreview::showFile);
    m_watcher.start();
}

QString LivePreview::loadResources(const QStringList &paths)
{
    for (const QString &path : paths) {
        const QString error = loadResource(path);
        if (!error.isEmpty())
            return error;
    }
    return QString();
}

void LivePreview::showFile(const QByteArray &content, const QString &fault)
{
    const QString fileName = QFileInfo(m_options.description).fileName();
    const QString staleName = tr("%1，工具栏未更新").arg(fileName);
    if (!fault.isEmpty()) {
        m_panel->setFindings(staleName, {finding({tr("无法读取文件：%1").arg(fault)})});
        return;
    }
    std::optional<DescriptionFault> parseFault;
    QDomDocument description = Description::parse(content, &parseFault);
    QVector<Finding> findings = check(content, m_options.skin);
    // Used if the checker, which reports more about such a file, is not part of the build.
    if (parseFault && !hasErrors(findings))
        findings.prepend(finding(*parseFault));
    std::stable_sort(findings.begin(), findings.end(), isWorse);
    m_panel->setFindings(parseFault ? staleName : fileName, findings);
    if (parseFault)
        return;
    if (m_options.clearHistory)
        Description::addClearHistory(description);
    Language::addTo(description);
    m_window.setDescription(description);
}
