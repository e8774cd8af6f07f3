// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

class QDomElement;
class QDomNode;
struct Controller;

/**
 * Appends one record per child element of @p element to @p out, each with its whole tree, if the
 * element is one of the five sections; does nothing for any other element or a null pointer.
 */
void ParseXMLElement(QDomElement *element, QList<Controller *> *out);

/** Appends one record per child element of @p node to the children of @p parent, recursively. */
void ParseDomNode(QDomNode *node, Controller *parent, QString section);

/**
 * Copies the tag and the attributes of @p element into @p target.
 * @return false if the element has no attributes and is no separator: the record then keeps its
 *         empty type, and the toolbar builds nothing from it.
 */
bool GetElementAttributes(QDomElement *element, Controller *target);

/** Frees the records and all below them. The list keeps its dangling pointers: drop it at once. */
void DeleteUnitControl(QList<Controller *> *list);
