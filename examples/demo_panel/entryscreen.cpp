// The entry screen: how a logic layer drives fields, the keyboard, the Pinyin
// candidate bar and the date/time picker. Runs on the GUI thread, inside the
// library's call-backs.
#include "entryscreen.h"

#include "pinyinengine.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace EntryScreen {

namespace {

const unsigned kNum = 300, kHex = 301, kText = 302, kClock = 303, kNumLabel = 310, kHexLabel = 311,
               kTextLabel = 312, kClockLabel = 313, kStatus = 314;
const long long kNumMin = -100, kNumMax = 5000; // what the keyboard lets the operator type
const long long kLineLimit = 4000; // what this machine accepts: checked by the logic, not the keyboard
unsigned g_window = 0;
bool g_built = false;

PinyinEngine g_pinyin;
std::string g_textValue = "";
std::string g_candidates; // the words shown on the candidate bar, separated by spaces
int g_candidatePage = 0;
const int kPerPage = 8;
std::string g_allCandidates[64];
int g_candidateCount = 0;

Font font(int px, unsigned color)
{
    Font f {};
    f.pixelSize = px;
    f.color = color;
    f.align = QGUI_ALIGN_LEFT | QGUI_ALIGN_VCENTER;
    return f;
}

void label(unsigned id, Rect r, const char* s)
{
    static const Font f = font(22, 0xFF2B3A4Au);
    View_TextLayout layout { QGUI_ALIGN_LEFT | QGUI_ALIGN_VCENTER, 0, 0 };
    View_Text t { 0, r, id, s, &f, &layout };
    View_CreateText(&t, g_window);
}

void field(unsigned id, Rect r, const char* s)
{
    static const Font f = font(28, 0xFF102030u);
    static const View_TextLayout layout { QGUI_ALIGN_LEFT | QGUI_ALIGN_VCENTER, 12, 0 };
    View_Input in {};
    in.rect = r;
    in.id = id;
    in.text = s;
    in.font = &f;
    in.layout = &layout;
    in.image = "field.svg";
    in.slashText = "****";
    View_CreateNumInputText(&in, g_window);
}

void status(const char* s)
{
    View_ChangeTextContent(kStatus, s, nullptr);
}

void writePictures()
{
    std::system("mkdir -p demo-project/tar/image");
    if (FILE* f = std::fopen("demo-project/tar/image/field.svg", "w")) {
        std::fputs("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 300 56'>"
                   "<rect x='1' y='1' width='298' height='54' rx='6' fill='#ffffff' stroke='#8aa4c0' "
                   "stroke-width='2'/></svg>",
            f);
        std::fclose(f);
    }
}

/** Opens the keyboard for a field, as the logic layer does on the field's release. */
void openKeyboard(unsigned id)
{
    char current[128] = "";
    if (id == kNum) {
        View_PopupVirtualKeyboard(id, VKB_DECIMAL, "");
        View_SetVirtualKeyboardRangeI(kNumMin, kNumMax); // "[ -100 , 5000 ]" on the entry line
    } else if (id == kHex) {
        View_PopupVirtualKeyboard(id, VKB_HEX, "");
        View_SetVirtualKeyboardValidator(VALIDATOR_HEX_UINT64); // 0 .. ffffffffffffffff
    } else if (id == kText) {
        View_PopupVirtualKeyboard(id, VKB_TEXT_PREDICTIVE, g_textValue.c_str());
    }
    (void)current;
    View_SetInputFlag(id); // the field blinks while it is the target of the entry
}

void showCandidates()
{
    g_candidates.clear();
    for (int i = g_candidatePage * kPerPage; i < g_candidateCount && i < (g_candidatePage + 1) * kPerPage; ++i) {
        if (!g_candidates.empty())
            g_candidates += ' ';
        g_candidates += g_allCandidates[i];
    }
    static const Font f = font(30, 0xFF102030u);
    View_keyBoardData bar {};
    bar.rect = Rect { 262, 330, 0, 0 };
    bar.candidates = g_candidates.c_str();
    bar.font = &f;
    bar.backColor = 0xFFF4F7FBu;
    bar.selectColor = 0xFF9EC3EEu;
    View_ShowKeyBoardWidget(&bar);
}

void offerCandidates(const char* letters)
{
    if (!g_pinyin.isOpen())
        g_pinyin.open();
    const QStringList words = g_pinyin.candidates(QString::fromUtf8(letters), 64);
    g_candidateCount = 0;
    for (const QString& w : words)
        g_allCandidates[g_candidateCount++] = w.toStdString();
    g_candidatePage = 0;
    if (g_candidateCount == 0) {
        g_textValue = letters; // not Pinyin: the letters themselves
        View_ChangeTextContent(kText, letters, nullptr);
        return;
    }
    showCandidates();
    status("Pick the words for the letters you typed");
}

void onEntered(unsigned id, const char* text)
{
    View_ClrInputFlag(id);
    char msg[160];
    if (id == kNum) {
        const long long v = std::strtoll(text, nullptr, 10);
        if (*text == '\0' || v > kLineLimit) {
            std::snprintf(msg, sizeof(msg), "%s refused: the line accepts at most %lld", text, kLineLimit);
            View_PopupMsg(msg, 3);
            status(msg);
            return; // the field keeps its value
        }
        View_ChangeTextContent(kNum, text, nullptr);
        std::snprintf(msg, sizeof(msg), "Set point %lld accepted", v);
        status(msg);
    } else if (id == kHex) {
        View_ChangeTextContent(kHex, text, nullptr);
        status("Mask written");
    } else if (id == kText) {
        offerCandidates(text);
    }
}

} // namespace

void build(unsigned windowId)
{
    g_window = windowId;
    if (g_built) {
        for (unsigned id : { kNum, kHex, kText, kClock, kNumLabel, kHexLabel, kTextLabel, kClockLabel, kStatus })
            View_SetWidgetParent(id, windowId);
        return;
    }
    g_built = true;
    writePictures();
    label(kNumLabel, Rect { 40, 40, 300, 56 }, "Set point (-100 .. 4000)");
    field(kNum, Rect { 360, 40, 300, 56 }, "1200");
    label(kHexLabel, Rect { 40, 110, 300, 56 }, "Alarm mask (64-bit hex)");
    field(kHex, Rect { 360, 110, 300, 56 }, "00FF00FF00FF00FF");
    label(kTextLabel, Rect { 40, 180, 300, 56 }, "Product name");
    field(kText, Rect { 360, 180, 300, 56 }, "");
    label(kClockLabel, Rect { 40, 250, 300, 56 }, "Next maintenance");
    static const Font clockFont = font(22, 0xFF102030u); // the whole date and time fits inside the frame
    View_InputClock clock { 0, Rect { 360, 250, 300, 56 }, kClock, "field.svg", "2026-12-01 08:00:00", &clockFont,
        0 };
    View_CreateInputClock(&clock, windowId);
    static const Font statusFont = font(20, 0xFF5A6B7Cu);
    View_TextLayout layout { QGUI_ALIGN_LEFT | QGUI_ALIGN_VCENTER, 0, 0 };
    View_Text st { 0, Rect { 40, 320, 700, 40 }, kStatus, "Touch a field to change it", &statusFont, &layout };
    View_CreateText(&st, windowId);
}

bool onEvent(unsigned id, int code, void* data)
{
    if (code == EVT_WIDGET_RELEASE && (id == kNum || id == kHex || id == kText)) {
        openKeyboard(id);
        return true;
    }
    if (code == EVT_WIDGET_RELEASE && id == kClock) {
        View_PopupDateTimeDialog(kClock, "2026-12-01 08:00:00");
        return true;
    }
    if (code == EVT_VKB_ENTER && data) {
        onEntered(id, static_cast<const char*>(data));
        return true;
    }
    if (code == EVT_VKB_HIDE) {
        View_ClrInputFlag(id);
        return true;
    }
    if (code == EVT_PINYIN_SELECT && data) {
        const int index = g_candidatePage * kPerPage + *static_cast<int*>(data);
        if (index >= 0 && index < g_candidateCount) {
            g_textValue = g_allCandidates[index];
            View_ChangeTextContent(kText, g_textValue.c_str(), nullptr);
            status("Product name written");
        }
        View_HideKeyBoardWidget();
        return true;
    }
    if (code == EVT_PINYIN_NEXT_PAGE || code == EVT_PINYIN_PREV_PAGE) {
        const int pages = (g_candidateCount + kPerPage - 1) / kPerPage;
        g_candidatePage += code == EVT_PINYIN_NEXT_PAGE ? 1 : -1;
        g_candidatePage = g_candidatePage < 0 ? 0 : g_candidatePage >= pages ? pages - 1 : g_candidatePage;
        showCandidates();
        return true;
    }
    if (code == EVT_DATETIME_OK && id == kClock && data) {
        View_ChangeTextContent(kClock, static_cast<const char*>(data), nullptr);
        status("Maintenance date set");
        return true;
    }
    return false;
}

bool scriptStep(int n, void (*shot)(const char* name))
{
    // what an operator does, one step each: the events are the ones the panel would send
    static char typed[] = "zhongguo";
    static int selected = 0;
    switch (n) {
    case 0:
        return true; // the screen settles
    case 1:
        onEvent(kNum, EVT_WIDGET_RELEASE, nullptr);
        return true;
    case 2:
        shot("6-keyboard-decimal");
        return true;
    case 3:
        onEvent(kNum, EVT_VKB_ENTER, const_cast<char*>("4500")); // above the line's limit: refused
        View_CloseVirtualKeyboard();
        return true;
    case 4:
        shot("7-value-refused");
        return true;
    case 5:
        onEvent(kHex, EVT_WIDGET_RELEASE, nullptr);
        return true;
    case 6:
        shot("8-keyboard-hex");
        return true;
    case 7:
        View_CloseVirtualKeyboard();
        onEvent(kText, EVT_WIDGET_RELEASE, nullptr);
        return true;
    case 8:
        shot("9-keyboard-text");
        return true;
    case 9:
        onEvent(kText, EVT_VKB_ENTER, typed);
        View_CloseVirtualKeyboard();
        return true;
    case 10:
        shot("10-pinyin-candidates");
        return true;
    case 11:
        onEvent(0, EVT_PINYIN_SELECT, &selected);
        View_PopupVirtualKeyboard(kClock, VKB_DATE, "");
        return true;
    case 12:
        shot("11-keyboard-date");
        return true;
    case 13:
        View_CloseVirtualKeyboard();
        onEvent(kClock, EVT_WIDGET_RELEASE, nullptr);
        return true;
    case 14:
        shot("12-datetime-picker");
        return true;
    default:
        return false;
    }
}

} // namespace EntryScreen
