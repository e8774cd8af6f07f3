// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/description/DescriptionLog.h"

// Off, because all that is logged is below this level.
Q_LOGGING_CATEGORY(descriptionLog, "mrtoolbar.description", QtFatalMsg)
