// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolbar/ToolBarTypes.h"

#include <QObject>

class QLineEdit;

/** Decides what the controls of a search tell the host. */
class SearchDispatcher : public QObject
{
    Q_OBJECT

public:
    /** The toolbar's own members, which hold the state of the search. */
    struct Members
    {
        QString &text;
        int &direction;
        bool &wholeWord;
        bool &noCase;
        bool &isFromExtraGroup;
    };

    explicit SearchDispatcher(const Members &members);

    /**
     * An option, a direction button or a field has been used. Its name tells what it is, and which
     * of the two fields must hold a text; each may be null. The object may be gone on return.
     */
    void use(const QObject *control, const QLineEdit *mainField, const QLineEdit *extraField);

Q_SIGNALS:
    void requested(SearchOption option);

private:
    void searchFrom(const QLineEdit *field, const QObject *control, bool isFromExtraGroup);
    void request(const QString &text, int direction, bool isFromExtraGroup);

    const Members m_members;
};
