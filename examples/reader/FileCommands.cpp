#include "FileCommands.h"

#include "CommandTable.h"
#include "Document.h"
#include "Export.h"
#include "PageView.h"
#include "ReaderSettings.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>

namespace {

const QString pdfFilter = QStringLiteral("PDF 文件 (*.pdf)");
const QString textFilter = QStringLiteral("文本文件 (*.txt)");
constexpr int mostRecentFiles = 30;

} // namespace

FileCommands::FileCommands(const ReaderParts &parts)
    : m_parts(parts)
{
}

void FileCommands::addTo(CommandTable &table)
{
    const auto name = [](const char *text) { return QStringList{QLatin1String(text)}; };
    table.add({QStringLiteral("f_open"), QStringLiteral("lum_open")}, Needs::Nothing,
              [this](const QString &) { askAndOpen(); });
    table.add(name("f_close"), Needs::Document, [this](const QString &) { close(); });
    table.add(name("f_save"), Needs::Changes, [this](const QString &) { save(); });
    table.add({QStringLiteral("f_saveas"), QStringLiteral("lum_saveas")}, Needs::Document,
              [this](const QString &) { saveAs(); });
    table.add(name("f_print"), Needs::Document, [this](const QString &) { print(); });
    table.add(name("f_property"), Needs::Document, [this](const QString &) { showProperties(); });
    table.add(name("f_exit"), Needs::Nothing, [this](const QString &) { m_parts.window->close(); });
    table.add(name("f_clearhistory"), Needs::Nothing,
              [this](const QString &) { m_parts.settings->clearRecentFiles(); });
    table.add(name("f_saveenv"), Needs::Document, [this](const QString &) {
        m_parts.say(QStringLiteral("保存信封：示例不生成数字信封"));
    });
    table.add(name("e_preference"), Needs::Nothing, [this](const QString &) { showPreferences(); });
    table.add({QStringLiteral("h_productinfo"), QStringLiteral("h_software")}, Needs::Nothing,
              [this](const QString &) { showAbout(); });
    table.add(name("h_softupdate"), Needs::Nothing,
              [this](const QString &) { m_parts.say(QStringLiteral("检查更新：示例不连接网络")); });
}

void FileCommands::open(const QString &fileName)
{
    if (!mayDiscard())
        return;
    m_savedFile.clear();
    m_parts.settings->addRecentFile(fileName);
    m_parts.document->open(fileName);
    m_parts.view->setCurrentPage(0);
    const QString what = QFileInfo::exists(fileName) ? QStringLiteral("已打开")
                                                     : QStringLiteral("文件不存在，按名称生成");
    m_parts.say(QStringLiteral("%1：%2").arg(what, QDir::toNativeSeparators(fileName)));
}

bool FileCommands::mayDiscard() const
{
    if (m_parts.document->undoStack().isClean())
        return true;
    QMessageBox box(QMessageBox::Question, m_parts.window->windowTitle(),
                    QStringLiteral("“%1”有未保存的修改，要放弃吗？").arg(m_parts.document->title()),
                    QMessageBox::NoButton, m_parts.window);
    const QPushButton *discard =
        box.addButton(QStringLiteral("放弃修改"), QMessageBox::DestructiveRole);
    box.addButton(QStringLiteral("取消"), QMessageBox::RejectRole);
    box.exec();
    return box.clickedButton() == discard;
}

void FileCommands::askAndOpen()
{
    const QString fileName = QFileDialog::getOpenFileName(
        m_parts.window, QStringLiteral("打开任意文件"), QString(), QStringLiteral("所有文件 (*)"));
    if (!fileName.isEmpty())
        open(fileName);
}

void FileCommands::close()
{
    if (mayDiscard())
        m_parts.document->close();
}

void FileCommands::save()
{
    if (m_savedFile.isEmpty())
        saveAs();
    else
        saveTo(m_savedFile);
}

void FileCommands::saveAs()
{
    const QString fileName =
        askFileToWrite(QStringLiteral("另存为"), pdfFilter + QStringLiteral(";;") + textFilter);
    if (!fileName.isEmpty())
        saveTo(fileName);
}

void FileCommands::saveTo(const QString &fileName)
{
    if (!Export::write(*m_parts.document, fileName)) {
        m_parts.say(QStringLiteral("无法写入：%1").arg(fileName));
        return;
    }
    m_savedFile = fileName;
    m_parts.document->undoStack().setClean();
    m_parts.say(QStringLiteral("已保存：%1").arg(fileName));
}

void FileCommands::print()
{
    const QString fileName = askFileToWrite(QStringLiteral("打印到 PDF 文件"), pdfFilter);
    if (fileName.isEmpty())
        return;
    const bool isPrinted = Export::print(*m_parts.document, fileName);
    m_parts.say((isPrinted ? QStringLiteral("已打印到：%1") : QStringLiteral("无法写入：%1"))
                    .arg(fileName));
}

QString FileCommands::askFileToWrite(const QString &title, const QString &filter) const
{
    const QFileInfo file(m_parts.document->fileName());
    QString chosen;
    QString fileName = QFileDialog::getSaveFileName(
        m_parts.window, title, file.completeBaseName() + QStringLiteral(".pdf"), filter, &chosen);
    if (!fileName.isEmpty() && QFileInfo(fileName).suffix().isEmpty())
        fileName += chosen == textFilter ? QStringLiteral(".txt") : QStringLiteral(".pdf");
    return fileName;
}

void FileCommands::showProperties() const
{
    const Document &document = *m_parts.document;
    const QString text = QStringLiteral("文件：%1\n页数：%2\n字数：%3\n批注：%4\n\n"
                                        "页面由文件名和大小生成。")
                             .arg(QDir::toNativeSeparators(document.fileName()))
                             .arg(document.pageCount())
                             .arg(document.characterCount())
                             .arg(document.marks().size());
    QMessageBox::information(m_parts.window, QStringLiteral("属性"), text);
}

void FileCommands::showPreferences()
{
    bool isGiven = false;
    const int limit = QInputDialog::getInt(
        m_parts.window, QStringLiteral("设置"), QStringLiteral("最近打开的文件的数量"),
        m_parts.settings->recentLimit(), 1, mostRecentFiles, 1, &isGiven);
    if (isGiven)
        m_parts.settings->setRecentLimit(limit);
}

void FileCommands::showAbout() const
{
    QMessageBox::about(m_parts.window, QStringLiteral("关于OFD阅读器"),
                       QStringLiteral("工具栏的示例阅读器\n\n页面由程序生成，不读取文件内容。\n"
                                      "Qt %1")
                           .arg(QLatin1String(qVersion())));
}
