// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "commands/LinkCommands.h"

#include "commands/SafeFile.h"
#include "document/Document.h"
#include "pages/PageView.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QSaveFile>
#include <QUrl>

namespace {

constexpr int longestAddress = 2000;
constexpr int lineLength = 60;

/** The address in lines, because a message box does not break words. */
QString inLines(const QString &address)
{
    QStringList lines;
    for (int i = 0; i < address.size(); i += lineLength)
        lines.append(address.mid(i, lineLength));
    return lines.join(QChar(u'\n'));
}

QUrl urlOf(const QString &address)
{
    const bool lacksScheme = address.startsWith(QLatin1String("www."), Qt::CaseInsensitive);
    const QUrl url(lacksScheme ? QStringLiteral("http://") + address : address);
    const QStringList schemes = {QStringLiteral("http"), QStringLiteral("https"),
                                 QStringLiteral("mailto")};
    return url.isValid() && schemes.contains(url.scheme()) ? url : QUrl();
}

} // namespace

LinkCommands::LinkCommands(const ReaderParts &parts)
    : m_parts(parts)
{
}

void LinkCommands::follow(const PageLink &link)
{
    if (link.attachment >= 0)
        return openAttachment(link.attachment);
    if (!link.address.isEmpty())
        return openAddress(link.address);
    PagePlace place = link.place;
    place.page = m_parts.document->pageOfFilePage(place.page);
    m_parts.view->rememberPlace();
    m_parts.view->showPlace(place);
}

void LinkCommands::showMark(int id)
{
    const Mark *mark = m_parts.document->markOf(id);
    if (!mark || !m_parts.document->hasPageOf(*mark))
        return;
    PagePlace place;
    place.page = mark->page == everyPage ? m_parts.view->currentPage() : mark->page;
    place.left = mark->rect().left();
    place.top = mark->rect().top();
    if (!m_parts.view->isInView(place.page, mark->rect())) {
        m_parts.view->rememberPlace();
        m_parts.view->showPlace(place);
    }
    m_parts.view->pointOut(place.page, mark->rect());
}

void LinkCommands::openAddress(const QString &address)
{
    const QUrl url = urlOf(address);
    const QString shown = QString::fromLatin1(url.toEncoded());
    if (shown.isEmpty() || shown.size() > longestAddress) {
        m_parts.say(tr("只打开网页和邮件地址，不打开：%1").arg(address.left(lineLength)));
        return;
    }
    if (mayOpen(tr("要在其他程序中打开这个地址吗？") + QStringLiteral("\n\n") + inLines(shown))
        && !QDesktopServices::openUrl(url))
        m_parts.say(tr("系统没有打开这个地址的程序"));
}

bool LinkCommands::mayOpen(const QString &question) const
{
    QMessageBox box(QMessageBox::Question, tr("打开"), question, QMessageBox::NoButton,
                    m_parts.window);
    box.setTextFormat(Qt::PlainText);
    const QPushButton *opening = box.addButton(tr("打开"), QMessageBox::AcceptRole);
    QPushButton *cancelling = box.addButton(tr("取消"), QMessageBox::RejectRole);
    box.setDefaultButton(cancelling);
    box.setEscapeButton(cancelling);
    box.exec();
    return box.clickedButton() == opening;
}

void LinkCommands::openAttachment(int index)
{
    const auto content = contentOf(index);
    if (!content)
        return;
    const QString name = SafeFile::nameFor(m_parts.document->file().attachments.at(index));
    if (!SafeFile::isHarmless(name, *content)) {
        m_parts.say(tr("“%1”可能是程序，不能打开，只能另存").arg(name));
        return;
    }
    if (!mayOpen(tr("要在其他程序中打开附件“%1”吗？请只打开可信的文件。").arg(name)))
        return;
    const QString copy = temporaryCopy(index, name, *content);
    if (copy.isEmpty())
        m_parts.say(tr("无法写入临时文件"));
    else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(copy)))
        m_parts.say(tr("系统没有打开“%1”的程序").arg(name));
}

void LinkCommands::saveAttachment(int index)
{
    const auto content = contentOf(index);
    if (!content)
        return;
    const QString name = SafeFile::nameFor(m_parts.document->file().attachments.at(index));
    const QString fileName =
        QFileDialog::getSaveFileName(m_parts.window, tr("附件另存为"), QDir::home().filePath(name));
    if (fileName.isEmpty())
        return;
    QSaveFile file(fileName);
    const bool isSaved =
        file.open(QIODevice::WriteOnly) && file.write(*content) == content->size() && file.commit();
    m_parts.say(isSaved ? tr("已保存：%1").arg(fileName) : tr("无法写入：%1").arg(fileName));
}

std::optional<QByteArray> LinkCommands::contentOf(int index) const
{
    QString error;
    QByteArray content = m_parts.document->file().attachment(index, &error);
    if (error.isEmpty())
        return content;
    m_parts.say(error);
    return std::nullopt;
}

QString LinkCommands::temporaryCopy(int index, const QString &name, const QByteArray &content)
{
    // A new folder each time, because a program may still have an earlier copy open.
    if (!m_folder)
        m_folder = std::make_unique<QTemporaryDir>();
    const QDir root(m_folder->path());
    const QString folder = QStringLiteral("%1-%2").arg(root.count()).arg(index);
    if (!m_folder->isValid() || !root.mkdir(folder))
        return QString();
    QFile file(root.filePath(folder + QChar(u'/') + name));
    const bool isWritten = file.open(QIODevice::WriteOnly | QIODevice::NewOnly)
                           && file.write(content) == content.size();
    file.close();
    // Changes would be lost with the folder, so it is only to be read.
    return isWritten && file.setPermissions(QFile::ReadOwner) ? file.fileName() : QString();
}
