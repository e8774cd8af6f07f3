// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "commands/FileCommands.h"

#include "commands/RecentFiles.h"
#include "document/Document.h"
#include "pages/Export.h"
#include "pages/OfdSaving.h"
#include "pages/PageView.h"
#include "pages/Printing.h"
#include "panels/PropertiesDialog.h"
#include "panels/SignatureDialog.h"

#include <toolbar/MRToolBarCommands.h>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMainWindow>
#include <QMap>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>

namespace {

constexpr int mostRecentFiles = 30;
const QString ofdSuffix = QStringLiteral(".ofd");

QString ofdFilter()
{
    return FileCommands::tr("OFD 文件 (*.ofd)");
}

QString pdfFilter()
{
    return FileCommands::tr("PDF 文件 (*.pdf)");
}

QString textFilter()
{
    return FileCommands::tr("文本文件 (*.txt)");
}

QString pictureFilter()
{
    return FileCommands::tr("PNG 图片，每页一个 (*.png)");
}

} // namespace

FileCommands::FileCommands(const ReaderParts &parts)
    : m_parts(parts)
{
}

void FileCommands::addTo(MRToolBarCommands &commands)
{
    commands.add({"f_open", "lum_open"}, [this](const QString &) { askAndOpen(); });
    m_parts.addForDocument(commands, "f_close", [this] { close(); });
    commands.add("f_save", [this] { save(); }).usableWhen([document = m_parts.document] {
        return document->isModified();
    });
    m_parts.addForDocument(commands, {"f_saveas", "lum_saveas"},
                           [this](const QString &) { saveAs(); });
    m_parts.addAllowed(Act::Print, commands, {"f_print"}, [this](const QString &) { print(); });
    m_parts.addForDocument(commands, "f_property", [this] { showProperties(); });
    commands.add("t_sealverify", [this] { showSignatures(); })
        .usableWhen([document = m_parts.document] { return document->file().isSigned; });
    commands.add("f_clearhistory", [this] { m_parts.recentFiles->clearRecentFiles(); });
    commands.setRecentFiles([recent = m_parts.recentFiles] { return recent->recentFiles(); },
                            [this](const QString &fileName) { openRecent(fileName); });
    m_parts.addForDocument(commands, "f_saveenv",
                           [this] { m_parts.say(tr("保存信封：示例不生成数字信封")); });
    commands.add("e_preference", [this] { showPreferences(); });
    commands.add({"h_productinfo", "h_software"}, [this](const QString &) { showAbout(); });
    commands.add("h_softupdate", [this] { m_parts.say(tr("检查更新：示例不连接网络")); });
}

bool FileCommands::open(const QString &fileName, QString *refusal)
{
    if (!mayLeaveDocument())
        return false;
    m_parts.keepPlace();
    QString error;
    if (!m_parts.document->open(fileName, &error)) {
        const QString sentence = refusalOf(fileName, error);
        if (refusal)
            *refusal = sentence;
        else
            showRefusal(sentence);
        return false;
    }
    m_savedFile.clear();
    m_parts.recentFiles->addRecentFile(fileName);
    m_parts.view->setCurrentPage(0);
    m_parts.view->setFocus();
    tellOpened(fileName);
    return true;
}

void FileCommands::tellOpened(const QString &fileName)
{
    const OfdFile &file = m_parts.document->file();
    QStringList notes = {refusalsOf(file.permissions), file.leftOut()};
    notes.removeAll(QString());
    m_parts.say(notes.isEmpty() ? tr("已打开：%1").arg(QDir::toNativeSeparators(fileName))
                                : notes.join(QStringLiteral("　")));
}

void FileCommands::openRecent(const QString &fileName)
{
    if (QFileInfo::exists(fileName))
        return m_parts.openFiles({fileName});
    m_parts.recentFiles->removeRecentFile(fileName);
    showRefusal(
        tr("“%1”已不存在，已从最近打开的文件中移除。").arg(QDir::toNativeSeparators(fileName)));
}

QString FileCommands::refusalOf(const QString &fileName, const QString &error)
{
    return tr("无法打开“%1”：%2").arg(QFileInfo(fileName).fileName(), error);
}

void FileCommands::openBody(int body)
{
    const QString fileName = m_parts.document->fileName();
    QString error;
    if (!mayLeaveDocument())
        return;
    if (!m_parts.document->open(fileName, &error, body)) {
        showRefusal(refusalOf(fileName, error));
        return;
    }
    m_savedFile.clear();
    m_parts.view->setCurrentPage(0);
    m_parts.view->setFocus();
}

void FileCommands::showRefusal(const QString &sentence) const
{
    // Not exec(): a file of the command line is opened before the window is shown.
    auto *box = new QMessageBox(QMessageBox::Warning, tr("无法打开"), sentence, QMessageBox::Ok,
                                m_parts.window);
    box->setTextFormat(Qt::PlainText);
    box->button(QMessageBox::Ok)->setText(tr("确定"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

bool FileCommands::mayLeaveDocument()
{
    if (!m_parts.document->isModified())
        return true;
    QMessageBox box(QMessageBox::Question, m_parts.window->windowTitle(),
                    tr("“%1”有未保存的修改，要保存吗？").arg(m_parts.document->title()),
                    QMessageBox::NoButton, m_parts.window);
    box.setTextFormat(Qt::PlainText);
    QPushButton *saving = box.addButton(tr("保存"), QMessageBox::AcceptRole);
    const QPushButton *discarding = box.addButton(tr("不保存"), QMessageBox::DestructiveRole);
    QPushButton *cancelling = box.addButton(tr("取消"), QMessageBox::RejectRole);
    // Without a default button, Qt would use the first one of the layout.
    box.setDefaultButton(saving);
    box.setEscapeButton(cancelling);
    box.exec();
    if (box.clickedButton() == saving)
        return save();
    return box.clickedButton() == discarding;
}

void FileCommands::askAndOpen()
{
    const QStringList fileNames =
        QFileDialog::getOpenFileNames(m_parts.window, tr("打开"), folder(),
                                      ofdFilter() + QStringLiteral(";;") + tr("所有文件 (*)"));
    if (!fileNames.isEmpty())
        m_parts.openFiles(fileNames);
}

QString FileCommands::folder() const
{
    const Document &document = *m_parts.document;
    const bool hasFolder = document.isOpen() && !document.isGenerated()
                           && m_parts.recentFiles->isKept(document.fileName());
    const QString last = hasFolder ? QFileInfo(document.fileName()).absolutePath()
                                   : m_parts.recentFiles->lastFolder();
    return QFileInfo(last).isDir() ? last : QDir::homePath();
}

void FileCommands::close()
{
    // The window asks by itself. Only the last one is left, to show the files opened last.
    if (!m_parts.isOnlyWindow()) {
        m_parts.window->close();
        return;
    }
    if (!mayLeaveDocument())
        return;
    m_parts.keepPlace();
    m_parts.document->close();
    m_parts.say(QString());
}

bool FileCommands::save()
{
    if (m_savedFile.isEmpty() && mayReplaceFile())
        return saveTo(m_parts.document->fileName());
    return m_savedFile.isEmpty() ? saveAs() : saveTo(m_savedFile);
}

bool FileCommands::mayReplaceFile() const
{
    const Document &document = *m_parts.document;
    if (document.isGenerated() || !OfdSaving::lossOf(document).isEmpty()
        || !document.fileName().endsWith(ofdSuffix, Qt::CaseInsensitive))
        return false;
    QFile file(document.fileName());
    // The administrator can write into any file, but this one was marked to stay as it is.
    if (!(file.permissions() & QFile::WriteOwner))
        return false;
    // Another program may have changed the file since it was read.
    return file.open(QIODevice::ReadOnly) && file.readAll() == document.file().archive;
}

bool FileCommands::saveAs()
{
    const QString fileName = askFileToWrite();
    return !fileName.isEmpty() && saveTo(fileName);
}

bool FileCommands::saveTo(const QString &fileName)
{
    const QString refusal = m_parts.document->refusalOf(Act::Export);
    if (!refusal.isEmpty() && !fileName.endsWith(ofdSuffix, Qt::CaseInsensitive)) {
        m_parts.say(refusal);
        return false;
    }
    if (!mayBreakSignature(fileName))
        return false;
    QString error;
    if (!write(fileName, &error)) {
        m_parts.say(error);
        return false;
    }
    const Document &document = *m_parts.document;
    const QString loss = Export::lossOf(document, fileName);
    const QString written = Export::writtenNames(document, fileName);
    // Another format is a copy: the marks are still to be saved, unless no OFD file can hold them.
    const bool isCopy = !fileName.endsWith(ofdSuffix, Qt::CaseInsensitive)
                        && !document.isGenerated() && OfdSaving::lossOf(document).isEmpty();
    if (!loss.isEmpty() || (isCopy && document.isModified())) {
        const QString rest = loss.isEmpty() ? tr("批注还没有存入 OFD 文件") : loss;
        m_parts.say(tr("已保存：%1。%2").arg(written, rest));
        return false;
    }
    if (!isCopy) {
        m_savedFile = fileName;
        m_parts.document->undoStack().setClean();
    }
    m_parts.say(document.quarters() == 0
                    ? tr("已保存：%1").arg(written)
                    : tr("已保存：%1。页面的旋转只用于查看，不写入文件").arg(written));
    return true;
}

bool FileCommands::write(const QString &fileName, QString *error) const
{
    constexpr int patience = 500; // Milliseconds before the dialog shows.
    QProgressDialog progress(tr("正在写入“%1”…").arg(QFileInfo(fileName).fileName()), tr("取消"), 0,
                             m_parts.document->pageCount(), m_parts.window);
    progress.setWindowTitle(m_parts.window->windowTitle());
    progress.setMinimumDuration(patience);
    // Another window could close the program.
    progress.setWindowModality(Qt::ApplicationModal);
    return Export::write(*m_parts.document, fileName, error, [&progress](int page) {
        progress.setValue(page);
        return !progress.wasCanceled();
    });
}

bool FileCommands::mayBreakSignature(const QString &fileName) const
{
    const Document &document = *m_parts.document;
    if (!document.file().isSigned || !document.isModified()
        || !fileName.endsWith(ofdSuffix, Qt::CaseInsensitive))
        return true;
    QMessageBox box(QMessageBox::Question, m_parts.window->windowTitle(),
                    tr("本文件有电子签名，写入修改后签名可能不再有效。要继续保存吗？"),
                    QMessageBox::NoButton, m_parts.window);
    const QPushButton *saving = box.addButton(tr("保存"), QMessageBox::AcceptRole);
    QPushButton *cancelling = box.addButton(tr("取消"), QMessageBox::RejectRole);
    box.setDefaultButton(cancelling);
    box.setEscapeButton(cancelling);
    box.exec();
    return box.clickedButton() == saving;
}

void FileCommands::print()
{
    const int most = m_parts.document->file().permissions.mostCopies;
    if (Printing::ask(*m_parts.document, m_parts.view->currentPage(), m_parts.window))
        m_parts.say(most < 0 ? tr("已打印") : tr("已打印；本文件每次最多打印 %1 份").arg(most));
    else
        m_parts.say(tr("没有打印"));
}

QString FileCommands::askFileToWrite() const
{
    const QMap<QString, QString> suffixes = {{ofdFilter(), ofdSuffix},
                                             {pdfFilter(), QStringLiteral(".pdf")},
                                             {textFilter(), QStringLiteral(".txt")},
                                             {pictureFilter(), QStringLiteral(".png")}};
    QStringList filters;
    if (m_parts.document->refusalOf(Act::Export).isEmpty())
        filters = QStringList{pdfFilter(), textFilter(), pictureFilter()};
    // The OFD format comes first unless it loses something.
    const bool loses = !OfdSaving::lossOf(*m_parts.document).isEmpty();
    if (!m_parts.document->isGenerated())
        filters.insert(loses && !filters.isEmpty() ? 1 : 0, ofdFilter());
    const QFileInfo file(m_parts.document->fileName());
    QString chosen = filters.first();
    QString fileName = QFileDialog::getSaveFileName(
        m_parts.window, tr("另存为"),
        QDir(folder()).filePath(file.completeBaseName() + suffixes.value(chosen)),
        filters.join(QStringLiteral(";;")), &chosen);
    // The suffix decides the format; one that means none is a part of the name, such as "1.2".
    const QString suffix = QChar(u'.') + QFileInfo(fileName).suffix().toLower();
    if (fileName.isEmpty() || suffixes.values().contains(suffix))
        return fileName;
    fileName += suffixes.value(chosen);
    return mayReplace(fileName) ? fileName : QString();
}

bool FileCommands::mayReplace(const QString &fileName) const
{
    // The dialog has asked for the name without the suffix only.
    if (!QFileInfo::exists(fileName))
        return true;
    QMessageBox box(QMessageBox::Warning, tr("另存为"),
                    tr("“%1”已存在，要替换吗？").arg(QFileInfo(fileName).fileName()),
                    QMessageBox::NoButton, m_parts.window);
    box.setTextFormat(Qt::PlainText);
    const QPushButton *replacing = box.addButton(tr("替换"), QMessageBox::DestructiveRole);
    QPushButton *cancelling = box.addButton(tr("取消"), QMessageBox::RejectRole);
    box.setDefaultButton(cancelling);
    box.setEscapeButton(cancelling);
    box.exec();
    return box.clickedButton() == replacing;
}

void FileCommands::showProperties() const
{
    PropertiesDialog(*m_parts.document, m_parts.view->currentPage(), m_parts.window).exec();
}

void FileCommands::showSignatures(int signature) const
{
    SignatureDialog dialog(*m_parts.document->file().document, m_parts.window);
    QObject::connect(&dialog, &SignatureDialog::pageChosen, m_parts.view,
                     &PageView::setCurrentPage);
    dialog.showSignature(signature);
    dialog.exec();
}

void FileCommands::showPreferences()
{
    bool isGiven = false;
    const int limit =
        QInputDialog::getInt(m_parts.window, tr("设置"), tr("最近打开的文件的数量"),
                             m_parts.recentFiles->recentLimit(), 1, mostRecentFiles, 1, &isGiven);
    if (isGiven)
        m_parts.recentFiles->setRecentLimit(limit);
}

void FileCommands::showAbout() const
{
    const QString version = QLatin1String(qVersion());
    const QString keys =
        tr("Alt、F10：按键提示\nF6：工具栏\nEsc：回到页面\nCtrl+F：查找\nCtrl+G：页码框\n"
           "Ctrl+M：缩放框\nF11：全屏");
    QMessageBox::about(m_parts.window, tr("关于OFD阅读器"),
                       tr("工具栏的示例阅读器，可打开 OFD 文件。\n\nQt %1").arg(version)
                           + QStringLiteral("\n\n") + keys);
}
