#pragma once

#include <QSet>
#include <QStringList>

class QDomDocument;

/** The names in a description, by what they may come back as. */
struct DescribedNames
{
    explicit DescribedNames(const QDomDocument &document);

    QStringList all;           ///< In the order of the document, without empty ones.
    QSet<QString> commands;    ///< What DoActive() may report.
    QSet<QString> doubleClick; ///< What DoDoubleActive() may report.
    QSet<QString> zoomModes;   ///< The predefined entries of the zoom box.
};
