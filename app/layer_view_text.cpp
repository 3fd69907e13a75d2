// Exports: static texts and carousel.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_text.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_CarouselText(unsigned int id, int dx, int dy)
{
    return QGUI_FORWARD(trace, "id", View_CarouselText, id, dx, dy);
}

int View_ChangeFontColor(unsigned int id, const Brush* brush)
{
    return QGUI_FORWARD(trace, "id", View_ChangeFontColor, id, brush);
}

int View_ChangeTextContent(unsigned int id, const char* text, const Font* font)
{
    return QGUI_FORWARD(trace, "id", View_ChangeText, id, text, font);
}

int View_ChangeTextParam(unsigned int id, const View_Text* rec)
{
    return QGUI_FORWARD(trace, "id", View_ChangeTextParam, id, rec);
}

int View_ChangeTitle(unsigned int id, const View_Text* rec)
{
    return QGUI_FORWARD(trace, "id", View_ChangeTitle, id, rec);
}

int View_CreateText(const View_Text* rec, unsigned int windowId)
{
    return QGUI_CREATE("静态文本元件", View_CreateText, rec, windowId);
}

int View_IsTextOutOfRange(unsigned int id, int direction)
{
    return QGUI_FORWARD(trace, "id", View_IsTextOutOfRange, id, direction);
}
