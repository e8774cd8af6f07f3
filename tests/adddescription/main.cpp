// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

// Ends with 0 if the descriptions and icons are where the library looks for them.

#include <bar/names.h>

#include <toolbar/MRToolBar.h>

#include <QFile>

#include <string_view>

static_assert(std::string_view(Names::h_open) == "h_open");
static_assert(std::string_view(Names::h_other) == "h_other");

int main()
{
    const QString skins = ":/mr_toolbar/Resources/";
    for (const char *present :
         {"marodi/main.xml", "lum/main.xml", "lum/other.xml", "marodi/icons/own/open.svg",
          "lum/icons/own/open.svg", "lum/icons/own/other.svg"}) {
        if (!QFile::exists(skins + present))
            return 1;
    }
    for (const char *absent :
         {"marodi/other.xml", "marodi/icons/own/other.svg", "lum/icons/lum/own/other.svg"}) {
        if (QFile::exists(skins + absent))
            return 1;
    }
    return 0;
}
