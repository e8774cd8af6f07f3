// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

// What the pieces of host code in the guides may use without saying so.

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
