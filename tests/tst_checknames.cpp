// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/support/CheckDocuments.h"

#include <QTest>

using namespace CheckDocuments;

namespace {

// The sections begin in line 2, controls and entries in line 3.
constexpr Fault faults[]{
    {additional, "warning folds-rows 3", "<button action='h_Unfolded'/>"},
    {additional, "warning folds-rows 3", "<button action='f_extended'/>"},
    {additional, "warning misspelt-name 3", "<button action='t_flod'/>"},
    {additional, "",
     "<button action='t_fold'/><button action='t_findcommand'/><button action='h_background'/>"},
    {tools, "warning no-such-background 3", "<button action='d_background'/>"},
    {menu, "warning no-such-background 3", "<menuitem action='menu_background_daytime'/>"},
    {search, "", "<button action='st_set'><menuitem action='in_background'/></button>"},
    {tools, "warning zoom-box-name 3",
     "<combobox action='v_size'><item action='vzmode_fitpage'/></combobox>"},
    {tools, "warning zoom-mode-without-p 3",
     "<combobox action='v_zoom'><item action='vzmode_10p'/><item "
     "action='vzmode_12.5'/></combobox>"},
    {tools, "warning area-name 3", "<button action='toolbar_hide'/>"},
    {tools, "warning blank-around-name 3", "<button action='a '/>"},
    {quick, "warning quick-access-prefix 3",
     "<button action='qbar_f_open'/><button action='f_save'/>"},
    {quick, "note quick-access-prefix 3", "<button action='f_save'/>"},
    {quick, "warning misspelt-name 3", "<button action='qt_seet'/>"},
    {quick, "", "<button action='qt_set'/><button action='qbar_a'/>"},
    {tools, "warning misspelt-name 3", "<combobox action='v_zom'><item action='a'/></combobox>"},
    {tools, "warning misspelt-name 3", "<lineedit action='d_gottopag'/>"},
    {tools, "", "<button action='vmode_flow'/><button action='vmode_slow'/>"},
    {menu, "warning misspelt-name 3",
     "<menu name='f_openrecnet'><menuitem action='no_file'/></menu>"},
    {tools, "warning tooltip-cuts-word 3", "<button action='a' tooltip='Open;Opens a document'/>"},
    {tools, "warning tooltip-cuts-word 3", "<button action='a' disabletip='No;Nothing here'/>"},
    {tools, "warning tooltip-third-part 3", "<button action='a' tooltip='a;b;c'/>"},
    {tools, "", "<button action='a' tooltip='Documents are opened'/>"},
    {tools, "", "<button action='a' tooltip='打开;在一个新的窗口里打开文档'/>"},
    {additional, "", "<button action='t_fold' tooltip='Hide the tools;Show the tools'/>"},
};

} // namespace

/** The findings about names, and tooltips, that do something else than their author expects. */
class CheckNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldWarnOfNamesThatDecide()
    {
        for (const Fault &fault : faults)
            QCOMPARE(reported(fault), expected(fault));
    }
};

QTEST_GUILESS_MAIN(CheckNamesTest)
#include "tst_checknames.moc"
