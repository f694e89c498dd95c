#include "data/streamValidation.h"

#include "data/documentStruct.h"
#include "data/faultSentences.h"
#include "data/recordTrail.h"
#include "data/schemaCache.h"
#include "data/xmlData.h"
#include "util/progressFile.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <libxml/SAX2.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlschemas.h>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

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
    runState(const QString &path, int maxMessages, const progressFunction &progress)
        : file(path, progress)
        , trail(maxMessages)
    {
    }

    progressFile file;
    xmlParserCtxt *parser = nullptr;
    xmlSAXHandler *schema = nullptr; // the callbacks of the schema layer, which take validator
    void *validator = nullptr;
    validationResult result;
    // A fault behind which nothing can be told: the parser gets no more of the file.
    bool stopped = false;
    bool refused = false; // for what it begins with: what follows is not told

    faultTrail trail;
    int faultsBefore = 0;  // the element that began last
    QByteArray withoutEnd; // what holds an element that belongs behind it: its end may be missing
    QByteArray text;
    bool textHasCdata = false;
    bool tellingText = false; // messages are about the text, which ended earlier
    int textLine = 0;
    int textColumn = 0;

    int line() const { return tellingText ? textLine : xmlSAX2GetLineNumber(parser); }
    int column() const { return tellingText ? textColumn : xmlSAX2GetColumnNumber(parser); }

    void addFormFault(int line, int column, const QString &message)
    {
        trail.add(line, column, message);
        result.formFault = {line, column, message, trail.where()};
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
    }

    void dropText()
    {
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
    if (error->level < XML_ERR_ERROR || state->stopped || state->refused)
        return;
    // What follows an error of form is made of that error, and libxml2 reads on at a speed that
    // falls with the square of the size. xmlStopParser() would free what it is looking at.
    state->stopped =
        error->level == XML_ERR_FATAL || error->domain == XML_FROM_IO
        || (error->domain == XML_FROM_NAMESPACE && error->code >= XML_NS_ERR_XML_NAMESPACE);
    const QString sentence = faultSentence(*error, state->trail);
    if (error->code == XML_SCHEMAV_CVC_TYPE_3_1_2
        || (error->code == XML_SCHEMAV_ELEMENT_CONTENT
            && state->trail.element() == state->trail.parent()))
        state->withoutEnd = QByteArray(state->trail.parent().data());
    // A tag that is cut off was taken for a whole one.
    if (error->code == XML_ERR_GT_REQUIRED)
        state->trail.forgetAfter(state->faultsBefore);
    const bool isTold =
        error->code == XML_ERR_TAG_NAME_MISMATCH && state->withoutEnd == error->str1;
    // Schema errors bring no column; the parser knows where it stands.
    if (error->domain != XML_FROM_PARSER && error->domain != XML_FROM_NAMESPACE)
        state->trail.add(state->line(), state->column(), sentence);
    else if (isTold)
        state->result.formFault = {error->line, error->int2, sentence, state->trail.where()};
    else if (state->stopped)
        state->addFormFault(error->line, error->int2, sentence);
    else
        state->trail.add(error->line, error->int2, sentence);
    // What stands in an unknown root is unknown, too.
    if (error->domain == XML_FROM_SCHEMASV && error->code == XML_SCHEMAV_CVC_ELT_1)
        state->refused = true;
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
    state->addFormFault(xmlSAX2GetLineNumber(state->parser), xmlSAX2GetColumnNumber(state->parser),
                        documentTypeRefused());
    state->refused = true;
    xmlStopParser(state->parser);
}

std::string_view textOf(const xmlChar *text) { return reinterpret_cast<const char *>(text); }

void startElement(void *context, const xmlChar *name, const xmlChar *prefix, const xmlChar *uri,
                  int namespaceCount, const xmlChar **namespaces, int attributeCount,
                  int defaultedCount, const xmlChar **attributes)
{
    auto *state = static_cast<runState *>(context);
    if (state->stopped)
        return;
    state->handOnText();
    state->dropText();
    state->faultsBefore = state->trail.count();
    state->trail.start(textOf(name));
    for (int i = 0; i < attributeCount; ++i) {
        const xmlChar **const attribute =
            attributes + ptrdiff_t(5) * i; // name, prefix, URI, begin, end
        state->trail.attribute(textOf(attribute[0]), {reinterpret_cast<const char *>(attribute[3]),
                                                      size_t(attribute[4] - attribute[3])});
    }
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
    state->trail.end(state->text);
    state->dropText();
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
        state.refused = true;
    if (state.file.tooManyAttributes()) {
        state.refused = true;
        state.addFormFault(input ? input->line : 0, input ? input->col : 0, tooManyAttributes());
        state.parser->wellFormed = 0;
    }
    if (!state.parser->wellFormed || state.stopped || state.refused || !input)
        return;
    const QLatin1String version(reinterpret_cast<const char *>(state.parser->version));
    if (input->cur < input->end || !state.file.atEnd())
        state.addFormFault(
            input->line, input->col,
            QCoreApplication::translate("data", "there is more behind the end of the document"));
    else if (!version.isEmpty() && version != QLatin1String("1.0"))
        state.addFormFault(
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
        state.result.valid = state.parser->wellFormed && !state.stopped && !state.refused
                             && xmlSchemaIsValid(validator) == 1;
    }
    if (state.parser)
        xmlFreeParserCtxt(state.parser);
    if (plug)
        xmlSchemaSAXUnplug(plug);
    xmlSchemaFreeValidCtxt(validator);
}

void readFile(runState &state, xmlSchema *schema)
{
    if (!QFileInfo(state.file).isFile() || !state.file.open(QIODevice::ReadOnly)) {
        state.addFormFault(0, 0, openingFault(state.file));
        return;
    }
    const QString fault = beginningFault(state.file);
    if (!fault.isEmpty()) {
        state.addFormFault(0, 0, fault);
        return;
    }
    // One handler takes the messages of the parser and of the schema, each without its own.
    const xmlStructuredErrorFunc oldHandler = xmlStructuredError;
    void *const oldContext = xmlStructuredErrorContext;
    xmlSetStructuredErrorFunc(&state, collectError);
    parse(state, schema);
    xmlSetStructuredErrorFunc(oldContext, oldHandler);
}

// Work in a thread of its own, whose progress is told in the caller's.
class besideThread
{
public:
    // For the work: tells the caller, and waits for the answer.
    bool tell(long long done, long long total)
    {
        std::unique_lock lock(m_mutex);
        m_done = done;
        m_total = total;
        m_asks = true;
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return !m_asks; });
        return m_goesOn;
    }

    void run(const std::function<void()> &work, const progressFunction &progress)
    {
        std::thread thread([&] {
            work();
            const std::lock_guard lock(m_mutex);
            m_ended = true;
            m_changed.notify_all();
        });
        std::unique_lock lock(m_mutex);
        while (true) {
            m_changed.wait(lock, [this] { return m_asks || m_ended; });
            if (m_ended)
                break;
            lock.unlock();
            const bool goesOn = progress(m_done, m_total);
            lock.lock();
            m_goesOn = goesOn;
            m_asks = false;
            m_changed.notify_all();
        }
        lock.unlock();
        thread.join();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    long long m_done = 0;
    long long m_total = 0;
    bool m_asks = false;
    bool m_goesOn = true;
    bool m_ended = false;
};

} // namespace

// libxml2 asks for and gives back memory for each element. In a thread it gets that from a heap of
// its own; in the one of a program that holds a large document it takes three times as long.
validationResult validateStreaming(const QString &xmlPath, const QString &xsdPath, int maxMessages,
                                   const progressFunction &progress)
{
    besideThread beside;
    progressFunction told;
    if (progress)
        told = [&beside](long long done, long long total) { return beside.tell(done, total); };
    runState state(xmlPath, maxMessages, told);
    const schemaPointer schema = schemaOf(xsdPath);
    if (!schema)
        return state.result;
    state.result.schemaLoaded = true;
    beside.run([&] { readFile(state, schema.get()); }, progress);
    state.trail.finish();
    state.result.messages = state.trail.faults();
    state.result.messageCount = state.trail.count();
    return state.result;
}

bool schemaLoads(const QString &xsdPath) { return schemaOf(xsdPath) != nullptr; }
