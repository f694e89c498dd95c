#include "data/streamValidation.h"

#include "data/schemaCache.h"
#include "data/xmlData.h"
#include "util/progressFile.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <libxml/SAX2.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlschemas.h>

#include <memory>

namespace {

struct schemaDeleter
{
    void operator()(xmlSchema *schema) const { xmlSchemaFree(schema); }
};
using schemaPointer = std::shared_ptr<xmlSchema>;

// What the callbacks of one validation share.
struct runState
{
    runState(const QString &path, const progressFunction &progress)
        : file(path, progress)
    {
    }

    progressFile file;
    xmlParserCtxt *parser = nullptr;
    validationResult result;
    int maxMessages = 0;

    void add(int line, int column, const QString &text)
    {
        ++result.messageCount;
        if (result.messages.size() < maxMessages)
            result.messages.append({line, column, text});
    }
};

// No document may make the parser open anything.
xmlParserInput *refuseExternal(const char *, const char *, xmlParserCtxt *) { return nullptr; }

void ignoreError(void *, xmlError *) {}

void collectError(void *context, xmlError *error)
{
    auto *state = static_cast<runState *>(context);
    if (error->level < XML_ERR_ERROR || state->result.refusedOutright)
        return;
    // Schema errors bring no column; the parser knows where it stands.
    const bool fromParser = error->domain == XML_FROM_PARSER || error->domain == XML_FROM_NAMESPACE;
    const int line = fromParser ? error->line : xmlSAX2GetLineNumber(state->parser);
    const int column = fromParser ? error->int2 : xmlSAX2GetColumnNumber(state->parser);
    state->add(line, column, QString::fromUtf8(error->message).trimmed());
    // QXmlSchemaValidator would let the type named in an unknown root stand for the root.
    if (error->domain == XML_FROM_SCHEMASV && error->code == XML_SCHEMAV_CVC_ELT_1)
        state->result.refusedOutright = true;
}

int readBlock(void *context, char *buffer, int length)
{
    return int(static_cast<runState *>(context)->file.read(buffer, length));
}

int closeNothing(void *) { return 0; }

void refuseDocumentType(void *context, const xmlChar *, const xmlChar *, const xmlChar *)
{
    auto *state = static_cast<runState *>(context);
    state->add(xmlSAX2GetLineNumber(state->parser), xmlSAX2GetColumnNumber(state->parser),
               documentTypeRefused());
    state->result.refusedOutright = true;
    xmlStopParser(state->parser);
}

// What libxml2 lets pass but the loaders' parser does not: a NUL byte behind the root, which it
// takes for the end of the file, and a version of XML that is none.
void refuseTheUnreadable(runState &state)
{
    const xmlParserInput *input = state.parser->input;
    if (state.file.cancelled())
        state.result.refusedOutright = true;
    if (state.file.tooManyAttributes()) {
        state.result.refusedOutright = true;
        state.add(input ? input->line : 0, input ? input->col : 0, tooManyAttributes());
        state.parser->wellFormed = 0;
    }
    if (!state.parser->wellFormed || !input)
        return;
    const QLatin1String version(reinterpret_cast<const char *>(state.parser->version));
    if (input->cur < input->end || !state.file.atEnd())
        state.add(
            input->line, input->col,
            QCoreApplication::translate("data", "there is more behind the end of the document"));
    else if (!version.isEmpty() && version != QLatin1String("1.0"))
        state.add(
            1, 1,
            QCoreApplication::translate("data", "XML of version %1 cannot be read").arg(version));
    else
        return;
    state.parser->wellFormed = 0;
}

schemaPointer compileSchema(const QByteArray &xsd)
{
    xmlSchemaParserCtxt *context = xmlSchemaNewMemParserCtxt(xsd.constData(), xsd.size());
    if (!context)
        return {};
    xmlSchemaSetParserStructuredErrors(context, ignoreError, nullptr);
    schemaPointer schema(xmlSchemaParse(context), schemaDeleter());
    xmlSchemaFreeParserCtxt(context);
    return schema;
}

schemaPointer schemaOf(const QString &xsdPath)
{
    static schemaCache<schemaPointer> schemas;
    static const bool initialised = [] {
        xmlInitParser();
        xmlSetExternalEntityLoader(refuseExternal);
        return true;
    }();
    Q_UNUSED(initialised)
    return schemas.get(xsdPath, compileSchema);
}

void parse(runState &state, xmlSchema *schema)
{
    xmlSAXHandler sax{};
    sax.initialized = XML_SAX2_MAGIC;
    sax.internalSubset = refuseDocumentType;

    xmlSchemaValidCtxt *validator = xmlSchemaNewValidCtxt(schema);
    state.parser = xmlCreateIOParserCtxt(&sax, &state, readBlock, closeNothing, &state,
                                         XML_CHAR_ENCODING_NONE);
    if (validator && state.parser) {
        xmlCtxtUseOptions(state.parser, XML_PARSE_NONET);
        xmlSchemaSAXPlugStruct *plug =
            xmlSchemaSAXPlug(validator, &state.parser->sax, &state.parser->userData);
        xmlSchemaValidateSetFilename(validator, nullptr);
        xmlParseDocument(state.parser);
        refuseTheUnreadable(state);
        state.result.valid = plug && state.parser->wellFormed && !state.result.refusedOutright
                             && xmlSchemaIsValid(validator) == 1;
        xmlSchemaSAXUnplug(plug);
    }
    if (state.parser)
        xmlFreeParserCtxt(state.parser);
    xmlSchemaFreeValidCtxt(validator);
}

} // namespace

validationResult validateStreaming(const QString &xmlPath, const QString &xsdPath, int maxMessages,
                                   const progressFunction &progress)
{
    runState state(xmlPath, progress);
    state.maxMessages = maxMessages;
    const schemaPointer schema = schemaOf(xsdPath);
    if (!schema)
        return state.result;
    state.result.schemaLoaded = true;

    if (!QFileInfo(xmlPath).isFile() || !state.file.open(QIODevice::ReadOnly)) {
        state.result.refusedOutright = true;
        state.result.messages.append(
            {0, 0, QCoreApplication::translate("data", "the file cannot be read")});
        state.result.messageCount = 1;
        return state.result;
    }
    // One handler takes the messages of the parser and of the schema, each without its own.
    const xmlStructuredErrorFunc oldHandler = xmlStructuredError;
    void *const oldContext = xmlStructuredErrorContext;
    xmlSetStructuredErrorFunc(&state, collectError);
    parse(state, schema.get());
    xmlSetStructuredErrorFunc(oldContext, oldHandler);
    return state.result;
}

bool schemaLoads(const QString &xsdPath) { return schemaOf(xsdPath) != nullptr; }
