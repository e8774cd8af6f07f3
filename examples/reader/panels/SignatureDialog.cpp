// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "panels/SignatureDialog.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr QSize dialogSize(640, 620);
constexpr int mostNamedFiles = 10;

QStyle::StandardPixmap iconOf(Ofd::SignatureResult::State state)
{
    switch (state) {
    case Ofd::SignatureResult::Valid:
        return QStyle::SP_DialogApplyButton;
    case Ofd::SignatureResult::Changed:
        return QStyle::SP_MessageBoxCritical;
    case Ofd::SignatureResult::Unknown:
        break;
    }
    return QStyle::SP_MessageBoxWarning;
}

QString shownTime(const QDateTime &time)
{
    return time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

/** The rows of a table in HTML; those without a value are left out. */
class Rows
{
public:
    void addHeading(const QString &text)
    {
        m_html +=
            QStringLiteral("<tr><td colspan=\"2\"><b>%1</b></td></tr>").arg(text.toHtmlEscaped());
    }
    void add(const QString &name, const QString &value)
    {
        if (value.isEmpty())
            return;
        m_html += QStringLiteral("<tr><td width=\"26%\">%1</td>"
                                 "<td>%2</td></tr>")
                      .arg(name.toHtmlEscaped(), value.toHtmlEscaped().replace(u'\n', "<br>"));
    }
    QString html() const
    {
        return QStringLiteral("<table width=\"100%\" cellpadding=\"2\">%1</table>").arg(m_html);
    }

private:
    QString m_html;
};

QString namesOf(const QStringList &files)
{
    QStringList names = files.mid(0, mostNamedFiles);
    if (files.size() > mostNamedFiles)
        names.append(SignatureDialog::tr("共 %1 个").arg(files.size()));
    return names.join(QChar(u'\n'));
}

QString namesOf(const QList<int> &pages)
{
    QStringList names;
    for (const int page : pages.mid(0, mostNamedFiles))
        names.append(QString::number(page + 1));
    if (pages.size() > mostNamedFiles)
        names.append(QStringLiteral("…"));
    return names.join(SignatureDialog::tr("、"));
}

void addCertificate(const Ofd::Certificate &certificate, Rows &rows)
{
    rows.addHeading(SignatureDialog::tr("签名证书"));
    rows.add(SignatureDialog::tr("主体"), certificate.subject);
    rows.add(SignatureDialog::tr("颁发者"), certificate.issuer);
    rows.add(SignatureDialog::tr("序列号"), certificate.serial);
    rows.add(SignatureDialog::tr("有效期"),
             SignatureDialog::tr("%1 至 %2")
                 .arg(shownTime(certificate.validFrom), shownTime(certificate.validTo)));
    rows.add(SignatureDialog::tr("信任"),
             SignatureDialog::tr("没有检查证书是否可信、是否已吊销。"));
}

/** The pages with the seals of each signature, in their order. */
QVector<QList<int>> pagesOf(const Ofd::Document &document)
{
    QVector<QList<int>> pages(document.signatures.entries.size());
    for (auto page = document.stamps.cbegin(); page != document.stamps.cend(); ++page) {
        for (const Ofd::Stamp &stamp : page.value()) {
            QList<int> &known = pages[stamp.signature];
            if (!known.contains(page.key()))
                known.append(page.key());
        }
    }
    for (QList<int> &known : pages)
        std::sort(known.begin(), known.end());
    return pages;
}

QVector<Ofd::SignatureResult> checked(const Ofd::Document &document)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QVector<Ofd::SignatureResult> results = checkSignatures(document);
    QGuiApplication::restoreOverrideCursor();
    return results;
}

} // namespace

SignatureDialog::SignatureDialog(const Ofd::Document &document, QWidget *parent)
    : QDialog(parent)
    , m_results(checked(document))
    , m_pages(pagesOf(document))
    , m_list(new QListWidget)
    , m_details(new QTextBrowser)
{
    setWindowTitle(tr("签名"));
    setObjectName(QStringLiteral("signatures"));
    m_list->setAccessibleName(tr("签名"));
    m_details->setAccessibleName(tr("签名的详情"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setText(tr("关闭"));
    m_pageButton = buttons->addButton(tr("转到签章"), QDialogButtonBox::ActionRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_pageButton, &QPushButton::clicked, this,
            [this] { Q_EMIT pageChosen(m_pages.at(m_list->currentRow()).first()); });
    connect(m_list, &QListWidget::currentRowChanged, this, &SignatureDialog::showDetails);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_details, 3);
    layout->addWidget(buttons);
    fillList();
    resize(dialogSize * logicalDpiX() / 96);
}

void SignatureDialog::fillList()
{
    for (const Ofd::SignatureResult &result : m_results) {
        const QString text = result.seal.isEmpty() ? result.sentence
                                                   : tr("%1：%2").arg(result.seal, result.sentence);
        auto *item = new QListWidgetItem(
            QStringLiteral("%1. %2").arg(m_list->count() + 1).arg(text), m_list);
        item->setIcon(style()->standardIcon(iconOf(result.state)));
        item->setToolTip(result.sentence);
    }
    m_list->setCurrentRow(0);
}

void SignatureDialog::showSignature(int signature)
{
    m_list->setCurrentRow(signature);
}

void SignatureDialog::showDetails(int signature)
{
    const Ofd::SignatureResult &result = m_results.at(signature);
    const QList<int> &pages = m_pages.at(signature);
    Rows rows;
    rows.addHeading(result.sentence);
    for (const QString &note : result.notes)
        rows.add(tr("注意"), note);
    rows.add(tr("印章"), result.seal);
    rows.add(tr("所在页"), namesOf(pages));
    const QString time = result.time.isValid() ? shownTime(result.time) : result.statedTime;
    rows.add(tr("签名时间"), time.isEmpty() ? time : tr("%1（由签名者声明）").arg(time));
    rows.add(tr("签名程序"), result.provider);
    rows.add(tr("签名方法"), Ofd::Crypto::nameOfSignature(result.method));
    if (!result.protectedFiles.isEmpty())
        rows.add(tr("受保护的文件"), tr("%1 个未被修改").arg(result.protectedFiles.size()));
    rows.add(tr("不受保护的文件"), namesOf(result.unprotectedFiles));
    if (result.certificate)
        addCertificate(*result.certificate, rows);
    m_details->setHtml(rows.html());
    m_pageButton->setEnabled(!pages.isEmpty());
}
