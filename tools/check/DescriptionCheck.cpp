// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tools/check/DescriptionCheck.h"

#include "tools/check/RoleAssignment.h"
#include "tools/check/Rules.h"
#include "tools/check/SourceDocument.h"

#include <algorithm>
#include <tuple>

namespace {

void reportFault(const SourceFault &fault, Findings &findings)
{
    if (fault.isEncoding) {
        findings.fail("encoding", fault.position,
                      QStringLiteral("the text is not UTF-8, so the host cannot rely on reading "
                                     "it; save it as UTF-8"));
        return;
    }
    QString reason = fault.message.trimmed();
    while (reason.endsWith(QLatin1Char('.')))
        reason.chop(1);
    findings.fail("xml-syntax", fault.position,
                  QStringLiteral("the XML is not well-formed (%1), so hosts cannot read the "
                                 "description; correct it here or shortly before")
                      .arg(reason));
}

/** Whether the library reads the sections below this root. */
bool checkRoot(const SourceElement &root, Findings &findings)
{
    if (root.tag != QLatin1String("uiconfig")) {
        findings.fail(
            "wrong-root", root.position,
            QStringLiteral("the root element is '%1', so the toolbar stays empty; it must "
                           "be 'uiconfig'")
                .arg(root.tag));
        return false;
    }
    if (!root.has("prefix"))
        findings.fail("no-prefix", root.position,
                      QStringLiteral("'uiconfig' has no attribute 'prefix', so the toolbar stays "
                                     "empty; add prefix=\"\""));
    return true;
}

void checkContent(const SourceDocument &document, const CheckOptions &options, Findings &findings)
{
    Rules::checkStructure(document, findings);
    Rules::checkAttributes(document, findings);
    Rules::checkIndexes(document, findings);
    Rules::checkShrinking(document, findings);
    Rules::checkNames(document, findings);
    Rules::checkReservedNames(document, findings);
    Rules::checkGroups(document, findings);
    Rules::checkIcons(document, options, findings);
    Rules::checkToolTips(document, options, findings);
    Rules::checkShortcuts(document, findings);
    Rules::checkKeyTips(document, findings);
    Rules::checkSpecialControls(document, findings);
}

bool standsBefore(const Finding &one, const Finding &other)
{
    return std::tie(one.line, one.column) < std::tie(other.line, other.column);
}

} // namespace

QVector<Finding> checkDescription(const QByteArray &description, const CheckOptions &options)
{
    Findings findings;
    SourceDocument document = readDocument(description);
    if (document.fault) {
        reportFault(*document.fault, findings);
    } else if (checkRoot(document.elements.front(), findings)) {
        assignRoles(document);
        checkContent(document, options, findings);
    }
    std::stable_sort(findings.all().begin(), findings.all().end(), standsBefore);
    return findings.all();
}
