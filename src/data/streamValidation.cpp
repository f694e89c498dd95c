#include "data/streamValidation.h"

#include "data/documentStruct.h"
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

// What the callbacks of one validation share. libxml2 hands over text in pieces and its schema
// layer would copy all of a text for each of them, so a text is joined here and handed on in one
// piece.
struct runState
{
    runState(const QString &path, const progressFunction &progress)
        : file(path, progress)
    {
    }

    progressFile file;
    xmlParserCtxt *parser = nullptr;
    xmlSAXHandler *schema = nullptr; // the callbacks of the schema layer, which take validator
    void *validator = nullptr;
    validationResult result;
    int maxMessages = 0;
    // A fault behind which nothing can be told: the parser gets no more of the file.
    bool stopped = false;

    QByteArray text;
    bool textHasCdata = false;
    bool tellingText = false; // messages are about the text, which ended earlier
    int textLine = 0;
    int textColumn = 0;

    int line() const { return tellingText ? textLine : xmlSAX2GetLineNumber(parser); }
    int column() const { return tellingText ? textColumn : xmlSAX2GetColumnNumber(parser); }

    void add(int line, int column, const QString &message)
    {
        ++result.messageCount;
        if (result.messages.size() < maxMessages)
            result.messages.append({line, column, message});
    }

    void append(const xmlChar *piece, int length)
    {
        text.append(reinterpret_cast<const char *>(piece), length);
        textLine = xmlSAX2GetLineNumber(parser);
        textColumn = xmlSAX2GetColumnNumber(parser);
    }

    void handOnText()
    {
        if (text.isEmpty() && !textHasCdata)
            return;
        tellingText = true;
        const auto handOn = textHasCdata ? schema->cdataBlock : schema->characters;
        handOn(validator, reinterpret_cast<const xmlChar *>(text.constData()), text.size());
        tellingText = false;
        textHasCdata = false;
        text.resize(0); // keeps its room
    }
};

// No document may make the parser open anything.
xmlParserInput *refuseExternal(const char *, const char *, xmlParserCtxt *) { return nullptr; }

void ignoreError(void *, xmlError *) {}

void collectError(void *context, xmlError *error)
{
    auto *state = static_cast<runState *>(context);
    if (error->level < XML_ERR_ERROR || state->stopped || state->result.refusedOutright)
        return;
    // Schema errors bring no column; the parser knows where it stands.
    const bool fromParser = error->domain == XML_FROM_PARSER || error->domain == XML_FROM_NAMESPACE;
    state->add(fromParser ? error->line : state->line(), fromParser ? error->int2 : state->column(),
               QString::fromUtf8(error->message).simplified());
    // What follows an error of form is made of that error, and libxml2 reads on at a speed that
    // falls with the square of the size. xmlStopParser() would free what it is looking at.
    if (error->level == XML_ERR_FATAL || error->domain == XML_FROM_IO
        || (error->domain == XML_FROM_NAMESPACE && error->code >= XML_NS_ERR_XML_NAMESPACE))
        state->stopped = true;
    // QXmlSchemaValidator would let the type named in an unknown root stand for the root.
    if (error->domain == XML_FROM_SCHEMASV && error->code == XML_SCHEMAV_CVC_ELT_1)
        state->result.refusedOutright = true;
}

int readBlock(void *context, char *buffer, int length)
{
    auto *state = static_cast<runState *>(context);
    return state->stopped ? 0 : int(state->file.read(buffer, length));
}

int closeNothing(void *) { return 0; }

void refuseDocumentType(void *context, const xmlChar *, const xmlChar *, const xmlChar *)
{
    auto *state = static_cast<runState *>(context);
    if (state->stopped)
        return;
    state->add(xmlSAX2GetLineNumber(state->parser), xmlSAX2GetColumnNumber(state->parser),
               documentTypeRefused());
    state->result.refusedOutright = true;
    xmlStopParser(state->parser);
}

void startElement(void *context, const xmlChar *name, const xmlChar *prefix, const xmlChar *uri,
                  int namespaceCount, const xmlChar **namespaces, int attributeCount,
                  int defaultedCount, const xmlChar **attributes)
{
    auto *state = static_cast<runState *>(context);
    if (state->stopped)
        return;
    state->handOnText();
    state->schema->startElementNs(state->validator, name, prefix, uri, namespaceCount, namespaces,
                                  attributeCount, defaultedCount, attributes);
}

void endElement(void *context, const xmlChar *name, const xmlChar *prefix, const xmlChar *uri)
{
    auto *state = static_cast<runState *>(context);
    if (state->stopped)
        return;
    state->handOnText();
    state->schema->endElementNs(state->validator, name, prefix, uri);
}

void takeText(void *context, const xmlChar *text, int length)
{
    static_cast<runState *>(context)->append(text, length);
}

void takeCdata(void *context, const xmlChar *text, int length)
{
    auto *state = static_cast<runState *>(context);
    state->textHasCdata = true;
    state->append(text, length);
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
    if (!state.parser->wellFormed || state.stopped || !input)
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
    sax.startElementNs = startElement;
    sax.endElementNs = endElement;
    sax.characters = sax.ignorableWhitespace = takeText;
    sax.cdataBlock = takeCdata;

    xmlSchemaValidCtxt *validator = xmlSchemaNewValidCtxt(schema);
    xmlSchemaSAXPlugStruct *plug =
        validator ? xmlSchemaSAXPlug(validator, &state.schema, &state.validator) : nullptr;
    state.parser = xmlCreateIOParserCtxt(&sax, &state, readBlock, closeNothing, &state,
                                         XML_CHAR_ENCODING_NONE);
    if (plug && state.parser) {
        xmlCtxtUseOptions(state.parser, XML_PARSE_NONET);
        xmlSchemaValidateSetFilename(validator, nullptr);
        xmlParseDocument(state.parser);
        refuseTheUnreadable(state);
        state.result.valid = state.parser->wellFormed && !state.stopped
                             && !state.result.refusedOutright && xmlSchemaIsValid(validator) == 1;
    }
    if (state.parser)
        xmlFreeParserCtxt(state.parser);
    if (plug)
        xmlSchemaSAXUnplug(plug);
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
    const QString fault = beginningFault(state.file);
    if (!fault.isEmpty()) {
        state.result.refusedOutright = true;
        state.add(0, 0, fault);
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
