#include "data/codeForms.h"

#include "data/schemaCache.h"
#include "data/streamValidation.h"

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlregexp.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

namespace codeForms {

namespace {

constexpr const char *schemaNamespace = "http://www.w3.org/2001/XMLSchema";

struct regexpDeleter
{
    void operator()(xmlRegexp *regexp) const { xmlRegFreeRegexp(regexp); }
};
// A value has to match one of them.
using patternList = std::vector<std::unique_ptr<xmlRegexp, regexpDeleter>>;

struct formSet
{
    bool schemaLoads = false;
    QHash<QString, std::shared_ptr<patternList>> forms; // of the elements that have plain ones
};

struct documentDeleter
{
    void operator()(xmlDoc *document) const { xmlFreeDoc(document); }
};

bool isNamed(const xmlNode *node, const char *name)
{
    return std::strcmp(reinterpret_cast<const char *>(node->name), name) == 0;
}

// Whether it is that element of the schema language with these attributes and no others.
bool is(xmlNode *node, const char *name, std::initializer_list<const char *> attributes)
{
    if (!node->ns
        || std::strcmp(reinterpret_cast<const char *>(node->ns->href), schemaNamespace) != 0
        || !isNamed(node, name))
        return false;
    size_t count = 0;
    for (const xmlAttr *attribute = node->properties; attribute; attribute = attribute->next)
        ++count;
    return count == attributes.size()
           && std::all_of(attributes.begin(), attributes.end(), [node](const char *attribute) {
                  return xmlHasNsProp(node, reinterpret_cast<const xmlChar *>(attribute), nullptr);
              });
}

QString attribute(xmlNode *node, const char *name)
{
    const std::unique_ptr<xmlChar, decltype(xmlFree)> value(
        xmlGetNoNsProp(node, reinterpret_cast<const xmlChar *>(name)), xmlFree);
    return QString::fromUtf8(reinterpret_cast<const char *>(value.get()));
}

// The elements below a node; none when texts or anything else but comments stands among them.
std::vector<xmlNode *> children(xmlNode *parent)
{
    std::vector<xmlNode *> result;
    for (xmlNode *node = parent->children; node; node = node->next) {
        if (node->type == XML_ELEMENT_NODE)
            result.push_back(node);
        else if (node->type != XML_COMMENT_NODE && !xmlIsBlankNode(node))
            return {};
    }
    return result;
}

xmlNode *named(const std::vector<xmlNode *> &nodes, const char *kind, const QString &name)
{
    const auto found = std::find_if(nodes.begin(), nodes.end(), [&](xmlNode *node) {
        return isNamed(node, kind) && attribute(node, "name") == name;
    });
    return found == nodes.end() ? nullptr : *found;
}

// Where the validators read regular expressions differently, both have to be asked.
bool isPlain(const QString &pattern)
{
    static const QString plain = QStringLiteral("[]{}()|?*+.,-_:/ ");
    for (int i = 0; i < pattern.size(); ++i) {
        if (pattern[i] == QLatin1Char('\\')) {
            if (++i == pattern.size() || pattern[i] != QLatin1Char('.'))
                return false;
        } else if (pattern[i].unicode() > 0x7f
                   || (!pattern[i].isLetterOrNumber() && !plain.contains(pattern[i]))) {
            return false;
        }
    }
    return true;
}

// The patterns of a type that is a text with nothing but patterns; null for any other.
std::shared_ptr<patternList> patternsOf(xmlNode *type)
{
    const std::vector<xmlNode *> content =
        type && is(type, "simpleType", {"name"}) ? children(type) : std::vector<xmlNode *>();
    if (content.size() != 1 || !is(content.front(), "restriction", {"base"}))
        return nullptr;
    xmlNode *restriction = content.front();
    const QString prefix =
        QString::fromUtf8(reinterpret_cast<const char *>(restriction->ns->prefix));
    const QString base =
        prefix.isEmpty() ? QStringLiteral("string") : prefix + QLatin1String(":string");
    const std::vector<xmlNode *> facets = children(restriction);
    if (attribute(restriction, "base") != base || facets.empty())
        return nullptr;
    auto patterns = std::make_shared<patternList>();
    for (xmlNode *facet : facets) {
        if (!is(facet, "pattern", {"value"}) || !isPlain(attribute(facet, "value")))
            return nullptr;
        patterns->emplace_back(xmlRegexpCompile(
            reinterpret_cast<const xmlChar *>(attribute(facet, "value").toUtf8().constData())));
        if (!patterns->back())
            return nullptr;
    }
    return patterns;
}

// What is understood of the schema: a root "kiv_check" whose type is a choice of elements of named
// types.
void readForms(const QByteArray &xsd, formSet *set)
{
    const std::unique_ptr<xmlDoc, documentDeleter> document(
        xmlReadMemory(xsd.constData(), xsd.size(), nullptr, nullptr,
                      XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING));
    if (!document || document->intSubset)
        return;
    xmlNode *schema = xmlDocGetRootElement(document.get());
    const std::vector<xmlNode *> all = children(schema);
    static const QString typeName = QStringLiteral("KIV_CHECK_1");
    xmlNode *root = named(all, "element", QStringLiteral("kiv_check"));
    xmlNode *type = named(all, "complexType", typeName);
    const bool hasImports = std::any_of(all.begin(), all.end(), [](xmlNode *node) {
        return isNamed(node, "include") || isNamed(node, "import") || isNamed(node, "redefine");
    });
    if (hasImports || !attribute(schema, "targetNamespace").isEmpty() || !root || !type
        || !is(root, "element", {"name", "type"}) || attribute(root, "type") != typeName
        || !is(type, "complexType", {"name"}))
        return;
    const std::vector<xmlNode *> content = children(type);
    if (content.size() != 1 || !is(content.front(), "choice", {}))
        return;
    for (xmlNode *element : children(content.front())) {
        if (!is(element, "element", {"name", "type"}))
            continue;
        if (auto patterns = patternsOf(named(all, "simpleType", attribute(element, "type"))))
            set->forms.insert(attribute(element, "name"), patterns);
    }
}

// Whether a file gives it back as it was written.
bool isUnchangedInFile(const QString &value)
{
    return std::all_of(value.begin(), value.end(), [](QChar c) {
        return c >= QLatin1Char(' ') && !c.isSurrogate() && c.unicode() < 0xfffe;
    });
}

} // namespace

std::optional<bool> matches(const QString &element, const QString &value, const QString &xsdPath)
{
    static schemaCache<std::shared_ptr<formSet>> sets;
    const std::shared_ptr<formSet> set = sets.get(xsdPath, [&xsdPath](const QByteArray &xsd) {
        auto read = std::make_shared<formSet>();
        read->schemaLoads = schemaLoads(xsdPath);
        if (read->schemaLoads)
            readForms(xsd, read.get());
        return read;
    });
    if (!set || !set->schemaLoads)
        return false;
    const auto form = set->forms.constFind(element);
    if (form == set->forms.constEnd() || !isUnchangedInFile(value))
        return std::nullopt;
    const QByteArray utf8 = value.toUtf8();
    for (const auto &pattern : **form) {
        const int verdict =
            xmlRegexpExec(pattern.get(), reinterpret_cast<const xmlChar *>(utf8.constData()));
        if (verdict < 0)
            return std::nullopt;
        if (verdict == 1)
            return true;
    }
    return false;
}

} // namespace codeForms
