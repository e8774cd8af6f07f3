#pragma once

#include <QString>

class Document;

/** Writes a document where other programs can read it. */
namespace Export {

/** As PDF, or as plain text for a name that ends in ".txt". Returns false if it cannot be written.
 */
bool write(const Document &document, const QString &fileName);

/** As PDF the way a printer would show it: with the print masks, without the display masks. */
bool print(const Document &document, const QString &fileName);

} // namespace Export
