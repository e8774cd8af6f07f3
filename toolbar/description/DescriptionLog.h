// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLoggingCategory>

/**
 * The mistakes of authors that are only seen at run time, as warnings of the category
 * "mrtoolbar.description". It is off: an application's user can do nothing about them.
 */
Q_DECLARE_LOGGING_CATEGORY(descriptionLog)
