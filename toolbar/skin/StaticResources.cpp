// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "toolbar/skin/StaticResources.h"

#ifdef MRTOOLBAR_STATIC

#include <QtGlobal>

// Outside every namespace, because the macro declares functions there.
void keepStaticResources()
{
    Q_INIT_RESOURCE(toolbar_xml);
    Q_INIT_RESOURCE(toolbar_qss);
    Q_INIT_RESOURCE(toolbar_icon);
#ifdef MRTOOLBAR_HAS_TRANSLATIONS
    Q_INIT_RESOURCE(mrtoolbar_objects_translations);
#endif
}

#endif
