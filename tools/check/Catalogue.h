// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/check/CatalogueNode.h"
#include "tools/check/DescribedTexts.h"

/** A catalogue of translations, in the format of Qt Linguist. */
class Catalogue
{
public:
    /** An empty one. */
    Catalogue();

    /** Takes over a catalogue with all that is in it; false, with nothing changed, if it is none.
     */
    bool read(const QByteArray &content);

    /** Sets the languages; an empty one stays what it was, which is Chinese for the sources. */
    void setLanguages(const QString &sources, const QString &translations);

    /**
     * Makes these texts the sources of the context of descriptions. What has been translated stays;
     * what is no source any more is marked as such, or goes if it never was translated.
     *
     * @param folder where the catalogue is: the places are given relative to it; empty for no
     * places
     */
    void update(const QVector<DescribedText> &texts, const QString &folder);

    QByteArray content() const;

private:
    CatalogueNode &context();

    CatalogueNode m_root;
};
