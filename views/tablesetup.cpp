#include "views/tablesetup.h"

#include "platform/guiqtadaptcore.h"
#include "xcomponents/qquick/picturecachemanage.h"

#include <QUrl>

using GuiQtAdapt::Core;

namespace TableSetup {

XTableViewControl::Setup toSetup(const View_List& rec, bool forceSingleLine)
{
    XTableViewControl::Setup s;
    const U32 n = rec.columns ? qMin(rec.columnCount, kMaxColumns) : 0;
    s.columns.reserve(int(n));
    for (U32 i = 0; i < n; ++i) {
        const View_ListColumn& in = rec.columns[i];
        XTableViewControl::Column c;
        c.title = Core::cutText(Core::fromUtf8(in.title), Core::kMaxShownText);
        c.width = in.width;
        c.align = in.align ? Core::toQAlignment(in.align) : Qt::AlignCenter;
        if (!(c.align & Qt::AlignHorizontal_Mask))
            c.align |= Qt::AlignHCenter;
        if (!(c.align & Qt::AlignVertical_Mask))
            c.align |= Qt::AlignVCenter;
        c.dataType = in.dataType;
        if (in.font) {
            c.font = Core::toQFont(in.font);
            c.color = Core::toQColor(in.font->color);
            c.hasFont = true;
        }
        c.hidden = in.hidden != 0;
        c.editable = in.editable != 0;
        s.columns.append(c);
    }
    s.hideHeader = rec.flags & LIST_HIDE_HEADER;
    s.filter = rec.flags & LIST_ENABLE_FILTER;
    s.singleLine = forceSingleLine || (rec.flags & LIST_SINGLE_LINE);
    s.selectRow = rec.flags & LIST_SELECT_ROW;
    s.toolbar = rec.flags & LIST_SHOW_TOOLBAR;
    s.scrollBar = !(rec.flags & LIST_HIDE_SCROLLBAR);
    s.hidePageButtons = rec.flags & LIST_HIDE_PAGE_BUTTONS;
    s.hidePageNum = rec.flags & LIST_HIDE_PAGE_NUM;
    s.hideTotalNum = rec.flags & LIST_HIDE_TOTAL_NUM;
    s.headerHeight = rec.headerHeight;
    s.rowHeight = rec.rowHeight;
    s.headerFont = Core::toQFont(rec.headerFont);
    if (rec.headerFont)
        s.headerTextColor = Core::toQColor(rec.headerFont->color);
    s.contentFont = Core::toQFont(rec.contentFont);
    if (rec.contentFont)
        s.contentColor = Core::toQColor(rec.contentFont->color);
    if (rec.headerColor)
        s.headerColor = Core::toQColor(rec.headerColor);
    if (rec.backColor)
        s.backColor = Core::toQColor(rec.backColor);
    s.altBackColor = rec.altBackColor ? Core::toQColor(rec.altBackColor) : s.backColor;
    if (rec.highlightColor)
        s.highlightColor = Core::toQColor(rec.highlightColor);
    const QPen grid = Core::toQPen(rec.gridPen);
    if (rec.gridPen.color) {
        s.gridColor = grid.color();
        s.gridWidth = qBound(0, int(grid.widthF()), 16);
    }
    const QPen border = Core::toQPen(rec.border);
    s.borderColor = border.color();
    s.borderWidth = rec.border.color ? qBound(0, int(border.widthF()), 16) : 0;
    return s;
}

QVector<QVector<XTableCell>> toPage(const std::vector<std::vector<View_ListColData>>& rows, int columns)
{
    QVector<QVector<XTableCell>> page;
    page.reserve(int(qMin(rows.size(), kMaxRows)));
    PictureCacheManage* pictures = PictureCacheManage::getInstance();
    for (size_t r = 0; r < rows.size() && r < kMaxRows; ++r) {
        const std::vector<View_ListColData>& in = rows[r];
        QVector<XTableCell> row;
        const int n = int(qMin(in.size(), size_t(qMax(0, columns))));
        row.reserve(n);
        for (int c = 0; c < n; ++c) {
            const View_ListColData& d = in[size_t(c)];
            XTableCell cell;
            cell.text = Core::cutText(Core::fromUtf8(d.text), Core::kMaxShownText);
            if (d.image && *d.image) {
                const QUrl url = pictures->getUrl(Core::fromString(d.image));
                if (url.isValid())
                    cell.image = url.toString();
            }
            if (d.font) {
                cell.font = Core::toQFont(d.font);
                cell.hasFont = true;
                if (!d.textColor)
                    cell.textColor = Core::toQColor(d.font->color);
            }
            if (d.textColor)
                cell.textColor = Core::toQColor(d.textColor);
            if (d.backColor)
                cell.backColor = Core::toQColor(d.backColor);
            row.append(std::move(cell));
        }
        page.append(std::move(row));
    }
    return page;
}

} // namespace TableSetup
