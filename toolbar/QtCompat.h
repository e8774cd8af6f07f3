// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QEvent>
#include <QKeySequence>
#include <QPoint>
#include <QTextStream>
#include <QtGlobal>

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
#include <QEnterEvent>
#include <QStringConverter>
#endif

/** The few places where one source must say two things to the two versions of Qt. */
namespace QtCompat {

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
using EnterEvent = QEnterEvent;
#else
using EnterEvent = QEvent;
#endif

inline void setUtf8(QTextStream &stream)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    stream.setEncoding(QStringConverter::Utf8);
#else
    stream.setCodec("UTF-8");
#endif
}

/** Where a mouse event happened on the screen; the two versions name it differently. */
template <typename MouseEvent>
QPoint globalPosition(const MouseEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->globalPosition().toPoint();
#else
    return event->globalPos();
#endif
}

/** One of the keys of a sequence, with the modifiers that it is pressed with. */
class KeyPart
{
public:
    KeyPart(const QKeySequence &sequence, int position)
        : m_part(sequence[static_cast<uint>(position)])
    {
    }

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    int key() const
    {
        return m_part.key();
    }
    Qt::KeyboardModifiers modifiers() const
    {
        return m_part.keyboardModifiers();
    }

private:
    QKeyCombination m_part;
#else
    int key() const
    {
        return m_part & ~Qt::KeyboardModifierMask;
    }
    Qt::KeyboardModifiers modifiers() const
    {
        return Qt::KeyboardModifiers(m_part & Qt::KeyboardModifierMask);
    }

private:
    int m_part;
#endif
};

/** Whether a shortcut has these keys. */
template <typename Shortcut>
bool hasKeys(const Shortcut *shortcut, const QKeySequence &keys)
{
#if QT_VERSION_MAJOR >= 6
    return shortcut->keys().contains(keys);
#else
    return shortcut->key() == keys;
#endif
}

} // namespace QtCompat
