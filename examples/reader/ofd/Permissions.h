// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/XmlElement.h"

#include <QDateTime>

namespace Ofd {

/** What the author of a document allows its readers; all of it if the file does not say. */
struct Permissions
{
    bool mayEdit = true;
    bool mayAnnotate = true;
    bool mayExport = true;
    bool maySign = true;
    bool mayAddWatermark = true;
    bool mayPrint = true;
    int mostCopies = -1; ///< Of one printing; negative for any number.
    QDateTime validFrom; ///< Invalid for no limit, as is the end.
    QDateTime validUntil;

    static Permissions of(const XmlElement &document);

    bool isValidAt(const QDateTime &time) const
    {
        return !(validFrom.isValid() && time < validFrom)
               && !(validUntil.isValid() && time > validUntil);
    }
};

} // namespace Ofd
