#pragma once

class QObject;

/** Whether @p object is somewhere below @p ancestor. An object is not below itself. */
bool isChildren(QObject *ancestor, QObject *object);
