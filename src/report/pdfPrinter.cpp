#include "report/pdfPrinter.h"

#include "util/memory.h"
#include "util/safeFile.h"
#include "util/scratch.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QScopeGuard>
#include <QTemporaryFile>
#include <QWebElement>
#include <QWebFrame>
#include <QWebPage>
#include <QWebView>

namespace {

constexpr int pageWidth = 1200;   // layout pixels across the paper
constexpr int bandHeight = 804;   // layout pixels of content on a page
constexpr int footBaseline = 834; // of the line under the band
constexpr int borderRoom = 2;     // keeps the captions' upper border off the page before
constexpr int headingRoom = 40;   // what follows a heading on its page
constexpr int titleLeft = 20;
constexpr int pageNumberLeft = 1100;
constexpr qreal footPointSize = 0.7;

// Gives the view the printing width, unzoomed, and its own back at the end.
class fixedWidth
{
public:
    explicit fixedWidth(QWebView *view)
        : m_view(view)
        , m_minimum(view->minimumWidth())
        , m_maximum(view->maximumWidth())
        , m_size(view->size())
        , m_viewport(view->page()->viewportSize())
        , m_zoom(view->zoomFactor())
    {
        view->setZoomFactor(1.0);
        view->setMinimumWidth(pageWidth);
        view->setMaximumWidth(pageWidth);
        // A view that was never shown has not told its page the new width.
        view->page()->setViewportSize(QSize(pageWidth, bandHeight));
    }
    ~fixedWidth()
    {
        m_view->setMinimumWidth(m_minimum);
        m_view->setMaximumWidth(m_maximum);
        m_view->resize(m_size);
        m_view->page()->setViewportSize(m_viewport);
        m_view->setZoomFactor(m_zoom);
    }
    Q_DISABLE_COPY(fixedWidth)

private:
    QWebView *m_view;
    int m_minimum;
    int m_maximum;
    QSize m_size;
    QSize m_viewport;
    qreal m_zoom;
};

// Where the page begins that follows the one with this place.
int bandEndAfter(int top) { return (top / bandHeight + 1) * bandHeight; }

// Moves what the end of a page would cut to the next page; takes the changes back at the end.
class pageBreaks
{
public:
    explicit pageBreaks(QWebFrame *frame)
        : m_frame(frame)
    {
        layOut();
        for (const QWebElement &table : frame->findAllElements(QStringLiteral("table.lines"))) {
            breakTable(table);
            layOut();
        }
        breakBlocks();
        layOut();
    }
    ~pageBreaks()
    {
        for (QWebElement &element : m_inserted)
            element.removeFromDocument();
    }
    Q_DISABLE_COPY(pageBreaks)

private:
    struct tableBreak
    {
        QWebElement gapRow;
        QWebElement firstCaption;
        int gap;
        int target; // where the captions shall stand: the top of a page
    };

    // Brings the geometry up to date; only painting makes the page lay itself out.
    void layOut()
    {
        QImage pixel(1, 1, QImage::Format_RGB32);
        QPainter painter(&pixel);
        m_frame->render(&painter, QWebFrame::ContentsLayer, QRegion(0, 0, 1, 1));
        m_frame->page()->setViewportSize(QSize(pageWidth, m_frame->contentsSize().height()));
    }

    QWebElement insertBefore(QWebElement &element, const QString &markup)
    {
        element.prependOutside(markup);
        m_inserted.append(element.previousSibling());
        return m_inserted.last();
    }

    // Rows of lines stay whole, and each page repeats the captions.
    void breakTable(const QWebElement &table)
    {
        const QWebElement head = table.findFirst(QStringLiteral("thead"));
        const QWebElementCollection captions = head.findAll(QStringLiteral("tr"));
        const int headHeight = head.geometry().height();
        const int columns = table.findAll(QStringLiteral("col")).count();
        // All heights are read before the first change: each change lays the page out again.
        struct row
        {
            QWebElement element;
            QRect place;
        };
        QVector<row> rows;
        for (const QWebElement &element : table.findAll(QStringLiteral("tr.line")))
            rows.append({element, element.geometry()});

        QVector<tableBreak> breaks;
        int shift = 0;
        for (row &r : rows) {
            const int top = r.place.top() + shift;
            const int target = bandEndAfter(top);
            if (top + r.place.height() <= target || r.place.height() > bandHeight - headHeight)
                continue;
            const int gap = target - top + borderRoom;
            tableBreak made{
                insertBefore(r.element, QStringLiteral("<tr><td colspan=\"%1\" style=\"padding:0;"
                                                       "border-width:1px 0 0 0\"></td></tr>")
                                            .arg(columns)),
                {},
                gap,
                target + borderRoom};
            for (const QWebElement &caption : captions) {
                r.element.prependOutside(caption.clone());
                m_inserted.append(r.element.previousSibling());
                if (made.firstCaption.isNull())
                    made.firstCaption = m_inserted.last();
            }
            setGap(made);
            breaks.append(made);
            shift += gap + headHeight;
        }
        settle(breaks);
    }

    static void setGap(tableBreak &made)
    {
        made.gapRow.firstChild().setStyleProperty(QStringLiteral("height"),
                                                  QStringLiteral("%1px").arg(qMax(0, made.gap)));
    }

    // Shared borders make a row a pixel higher or lower than asked for, and hundreds of pages add
    // up: the gaps are corrected until the captions stand where pages begin.
    void settle(QVector<tableBreak> &breaks)
    {
        constexpr int maxRounds = 4;
        for (int round = 0; round < maxRounds; ++round) {
            layOut();
            QVector<int> tops;
            for (const tableBreak &made : breaks)
                tops.append(made.firstCaption.geometry().top());
            int shift = 0;
            for (int i = 0; i < breaks.size(); ++i) {
                const int error = breaks[i].target - (tops[i] + shift);
                if (error == 0)
                    continue;
                breaks[i].gap += error;
                setGap(breaks[i]);
                shift += error;
            }
            if (shift == 0)
                return;
        }
    }

    // Sums, headings, paragraphs and points of lists stay whole.
    void breakBlocks()
    {
        struct block
        {
            QWebElement element;
            QRect place;
        };
        QVector<block> blocks;
        for (const QWebElement &element :
             m_frame->findAllElements(QStringLiteral("table.sums, h2, p, li")))
            blocks.append({element, element.geometry()});
        int shift = 0;
        for (block &b : blocks) {
            const int top = b.place.top() + shift;
            const int target = bandEndAfter(top);
            // A heading needs a line below it on its page.
            const int height =
                b.place.height() + (b.element.tagName() == QLatin1String("H2") ? headingRoom : 0);
            if (top + height <= target || height > bandHeight)
                continue;
            insertBefore(b.element,
                         QStringLiteral("<div style=\"height:%1px\"></div>").arg(target - top));
            shift += target - top;
        }
    }

    QWebFrame *m_frame;
    QVector<QWebElement> m_inserted;
};

bool paintPages(QPrinter &printer, QWebFrame *frame, const QString &title,
                const progressFunction &progress)
{
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing
                           | QPainter::SmoothPixmapTransform);
    const qreal scale = qreal(printer.width()) / pageWidth;
    painter.scale(scale, scale);
    QFont font = painter.font();
    font.setPointSizeF(footPointSize);

    // Not the frame's content size, which keeps the greatest height the page ever had.
    const int height = frame->documentElement().geometry().height();
    const int pages = qMax(1, (height + bandHeight - 1) / bandHeight);
    for (int page = 0; page < pages; ++page) {
        const int top = page * bandHeight;
        painter.save();
        frame->render(&painter, QWebFrame::ContentsLayer, QRegion(0, top, pageWidth, bandHeight));
        painter.restore();
        painter.setPen(Qt::black);
        painter.setFont(font);
        painter.drawText(titleLeft, top + footBaseline, title);
        painter.drawText(pageNumberLeft, top + footBaseline,
                         QCoreApplication::translate("pdfPrinter", "Page no:") + QLatin1Char(' ')
                             + QString::number(page + 1));
        painter.translate(0, -bandHeight);
        if (progress && !progress(page + 1, pages))
            return false;
        if (page + 1 < pages && !printer.newPage())
            return false;
    }
    return painter.end();
}

// Puts a printed file in its place. The PDF engine reports no short write, but only a whole file
// has its end mark.
bool deliver(const QString &printed, const QString &path)
{
    QFile file(printed);
    safeFile target(path);
    if (!file.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly))
        return false;
    const QByteArray pdf = file.readAll();
    if (!pdf.right(32).contains("%%EOF"))
        return false;
    target.write(pdf);
    return target.commit();
}

} // namespace

QString pdfPath(const QString &chosen)
{
    return chosen.contains(QLatin1String(".pdf")) ? chosen : chosen + QLatin1String(".pdf");
}

bool printPdf(QWebView *view, const QString &path, const QString &title,
              const progressFunction &progress)
{
    // A bad place is told before the long work.
    if (!safeFile(path).open(QIODevice::WriteOnly))
        return false;
    // A report of hundreds of pages takes hundreds of megabytes.
    const auto afterwards = qScopeGuard(giveBackMemory);
    // Printed elsewhere first: a failed or cancelled print leaves the old file.
    QTemporaryFile temporary(scratch::pattern(QStringLiteral(".pdf")));
    if (!temporary.open())
        return false;

    const fixedWidth width(view);
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(temporary.fileName());
    printer.setPageOrientation(QPageLayout::Landscape);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setDocName(title);
    printer.setCreator(QCoreApplication::applicationName());

    QWebFrame *frame = view->page()->mainFrame();
    const pageBreaks breaks(frame);
    return paintPages(printer, frame, title, progress) && deliver(temporary.fileName(), path);
}
