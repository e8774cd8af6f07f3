// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/ofd/PackageMaker.h"

#include <QBuffer>
#include <QFile>

#include <quazip/quazip.h>
#include <quazip/quazipfile.h>

namespace {

constexpr int linesPerPage = 4;

QByteArray root(const char *name, const QString &inside)
{
    return QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                          "<ofd:%1 xmlns:ofd=\"http://www.ofdspec.org/2016\">%2</ofd:%1>")
        .arg(QLatin1String(name), inside)
        .toUtf8();
}

} // namespace

QString PackageMaker::pagePath(int page)
{
    return QStringLiteral("Doc_0/Pages/Page_%1/Content.xml").arg(page);
}

QByteArray PackageMaker::pageOf(const QString &text, const QString &box)
{
    QString lines;
    for (int line = 0; line < linesPerPage; ++line) {
        lines += QStringLiteral("<ofd:TextObject ID=\"%1\" Boundary=\"20 %2 170 8\" Font=\"1\" "
                                "Size=\"5\"><ofd:TextCode X=\"0\" Y=\"6\" DeltaX=\"g 40 4\">%3"
                                "</ofd:TextCode></ofd:TextObject>")
                     .arg(line + 1)
                     .arg(20 + 10 * line)
                     .arg(text);
    }
    const QString area =
        box.isEmpty()
            ? QString()
            : QStringLiteral("<ofd:Area><ofd:PhysicalBox>%1</ofd:PhysicalBox></ofd:Area>").arg(box);
    return root("Page", area
                            + QStringLiteral("<ofd:Content><ofd:Layer ID=\"9\">%1</ofd:Layer>"
                                             "</ofd:Content>")
                                  .arg(lines));
}

PackageMaker::Entries PackageMaker::documentOf(int pages)
{
    Entries entries;
    entries.insert("OFD.xml", root("OFD", "<ofd:DocBody><ofd:DocInfo><ofd:Title>First</ofd:Title>"
                                          "</ofd:DocInfo><ofd:DocRoot>Doc_0/Document.xml"
                                          "</ofd:DocRoot></ofd:DocBody>"));
    QString list;
    for (int page = 0; page < pages; ++page) {
        list += QStringLiteral("<ofd:Page ID=\"%1\" BaseLoc=\"Pages/Page_%2/Content.xml\"/>")
                    .arg(page + 1)
                    .arg(page);
        const QString text = QStringLiteral("Page number %1 of a long document, to be searched. ");
        entries.insert(pagePath(page), pageOf(text.arg(page + 1) + QString(80, QChar(u'文'))));
    }
    entries.insert("Doc_0/Document.xml",
                   root("Document", "<ofd:CommonData><ofd:PageArea><ofd:PhysicalBox>0 0 210 297"
                                    "</ofd:PhysicalBox></ofd:PageArea><ofd:PublicRes>PublicRes.xml"
                                    "</ofd:PublicRes></ofd:CommonData><ofd:Pages>"
                                        + list + "</ofd:Pages>"));
    entries.insert(
        "Doc_0/PublicRes.xml",
        root("Res", "<ofd:Fonts><ofd:Font ID=\"1\" FontName=\"Noto Sans CJK SC\"/></ofd:Fonts>"));
    return entries;
}

QByteArray PackageMaker::archive(const Entries &entries)
{
    QBuffer buffer;
    QuaZip zip(&buffer);
    zip.open(QuaZip::mdCreate);
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        QuaZipFile file(&zip);
        // Not packed, so that no large entry is taken for a bomb.
        file.open(QIODevice::WriteOnly, QuaZipNewInfo(entry.key()), nullptr, 0, 0);
        file.write(*entry);
        file.close();
    }
    zip.close();
    return zip.getZipError() == UNZ_OK ? buffer.data() : QByteArray();
}

bool PackageMaker::write(const QString &fileName, const QByteArray &bytes)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray PackageMaker::bytesOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
