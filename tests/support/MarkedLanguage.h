// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

/** A language that marks all texts of descriptions and of the library. */
class MarkedLanguage : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool isOfQt = context[0] == 'Q' && qstrcmp(context, "QObject") != 0;
        return isOfQt ? QString() : "<" + QString::fromUtf8(source) + " >";
    }
    bool isEmpty() const override { return false; }

    void install()
    {
        QCoreApplication::installTranslator(this);
        QTest::qWait(1);
    }
    void remove()
    {
        QCoreApplication::removeTranslator(this);
        QTest::qWait(1);
    }
};
