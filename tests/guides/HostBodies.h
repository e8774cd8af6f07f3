// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

// The includes and variables that the fragments of host code in the guides use undeclared.

#include <toolbar/MRToolBar.h>
#include <toolbar/NewToolBar.h>
#include <toolbar/handwrite/MRHandWriteDialog.h>

#include <QApplication>
#include <QDebug>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QMainWindow>
#include <QMessageBox>
#include <QSet>
#include <QSettings>
#include <QSlider>
#include <QThread>
#include <QToolBar>
#include <QTranslator>
