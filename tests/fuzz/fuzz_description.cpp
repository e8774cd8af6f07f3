// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "tests/monkey/RandomSource.h"
#include "tests/support/Elements.h"
#include "tests/support/Use.h"

#include <QApplication>
#include <QDomDocument>

#include <algorithm>

namespace {

constexpr int mostElements = 250;

const QStringList tags =
    words("toolbar_appbutton toolbar_quickaccessbar toolbar_tabbar toolbar_searchbar "
          "toolbar_addtional tabbutton menu menuitem button buttongroup combobox item label "
          "lineedit extra sperator unknown");

const QStringList attributes = words(
    "text icon name action tooltip disabletip shortcut output layout group arrow dropicon "
    "visible usable available doubleclick checkable editable switchable withaction scalable "
    "check checked index shrink keywords keytip shortcutscope context contextcolour peek quickadd");

const QStringList values =
    QStringList{"", " "}
    + words("true false 0 1 2 -1 2147483647 a;b 100% / menu_ annotgroup zmode v_zoom d_gotopage "
            "d_totalpagelabel vzmode_original vzmode_custom vzmode_37p background_nighttime "
            "vpmode_singlepage vmode_flow tp_shape qbar_f_open qt_set st_input st_prev st_next "
            "st_set st_option_nocase st_option_wholeword gis_next t_fold t_extend f_openrecent "
            "f_openrecentfile no_file f_clearhistory ab_set menu_file toolbar_whole mrtoolbar "
            "tabwidget top_widget ../../.. icon16/Set.svg <b>&amp; Ctrl+O");

/** The element and all its descendants. */
QList<QDomElement> elementsOf(const QDomElement &root)
{
    return QList<QDomElement>{root} + elementsBelow(root);
}

/** Changes elements and attributes instead of bytes, so that descriptions stay well-formed. */
class DescriptionMutator
{
public:
    explicit DescriptionMutator(unsigned int seed)
        : m_random(seed)
    {
    }

    /** The description after a few changes; empty if @p xml is not well-formed. */
    QByteArray mutated(const QByteArray &xml)
    {
        constexpr int mostChanges = 4;
        QDomDocument document;
        if (!document.setContent(xml))
            return {};
        for (int changes = 1 + m_random.below(mostChanges); changes > 0; --changes)
            change(document);
        return document.toByteArray(0);
    }

private:
    QDomElement anyElement(const QDomDocument &document)
    {
        return m_random.oneOf(elementsOf(document.documentElement()));
    }

    QString anyValue(const QDomDocument &document)
    {
        // Many rules depend on two controls with one name, so values of the document are reused.
        const QDomNamedNodeMap known = anyElement(document).attributes();
        if (known.isEmpty() || m_random.below(2) == 0)
            return m_random.oneOf<QString>(values);
        return known.item(m_random.below(known.count())).nodeValue();
    }

    void change(QDomDocument &document)
    {
        QDomElement element = anyElement(document);
        switch (m_random.below(6)) {
        case 0:
            addElement(document, element);
            break;
        case 1:
            removeElement(document, element);
            break;
        case 2:
            copyElement(element, anyElement(document));
            break;
        default:
            setAttribute(document, element);
        }
    }

    void setAttribute(QDomDocument &document, QDomElement element)
    {
        const QDomNamedNodeMap known = element.attributes();
        if (!known.isEmpty() && m_random.below(5) == 0 && element != document.documentElement())
            element.removeAttribute(known.item(m_random.below(known.count())).nodeName());
        else
            element.setAttribute(m_random.oneOf<QString>(attributes), anyValue(document));
    }

    void addElement(QDomDocument &document, QDomElement parent)
    {
        QDomElement child = document.createElement(m_random.oneOf<QString>(tags));
        for (int i = m_random.below(4); i > 0; --i)
            child.setAttribute(m_random.oneOf<QString>(attributes), anyValue(document));
        parent.appendChild(child);
    }

    void removeElement(const QDomDocument &document, QDomElement element)
    {
        if (element == document.documentElement())
            return;
        // In half of the cases the children take the place of the element.
        for (QDomNode parent = element.parentNode();
             m_random.below(2) == 0 && element.hasChildNodes();)
            parent.insertBefore(element.firstChild(), element);
        element.parentNode().removeChild(element);
    }

    void copyElement(QDomElement element, QDomElement target)
    {
        const auto present = elementsOf(element.ownerDocument().documentElement()).size();
        if (elementsOf(element).size() + present < mostElements)
            target.appendChild(element.cloneNode());
    }

    RandomSource m_random;
};

} // namespace

extern "C" {

size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t maxSize);

int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The platform plug-in logs its missing features with every window.
    qputenv("QT_LOGGING_RULES", "*=false");
    // Each of the 100 or so widgets of a run would look for the accessibility bus.
    qputenv("QT_ACCESSIBILITY", "0");
    // Never deleted: the fuzzer exits without returning from here.
    new QApplication(*argc, *argv);
    return 0;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // Computed from the description, so that a run can be repeated.
    const int skin = static_cast<int>(size % 2);
    const auto alignment = static_cast<ToolBarAlignment>(size % 3);
    useDescription(QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)), skin,
                   alignment);
    return 0;
}

size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t maxSize, unsigned int seed)
{
    // Random changes of bytes mostly give XML that is not well-formed, which tests the XML parser
    // and nothing of the toolbar. So only a share of the inputs is changed by bytes.
    constexpr unsigned int shareOfBytes = 8;
    if (seed % shareOfBytes == 0)
        return LLVMFuzzerMutate(data, size, maxSize);
    const QByteArray document(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const QByteArray mutated = DescriptionMutator(seed).mutated(document);
    if (mutated.isEmpty() || static_cast<size_t>(mutated.size()) > maxSize)
        return LLVMFuzzerMutate(data, size, maxSize);
    std::copy(mutated.begin(), mutated.end(), reinterpret_cast<char *>(data));
    return static_cast<size_t>(mutated.size());
}

} // extern "C"
