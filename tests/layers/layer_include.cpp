// Compiled with one layer's include path and one header of the tree: it builds when the header is
// in that layer or below it, and must fail when the header belongs to a layer above.
#include QGUI_CHECKED_HEADER

int main()
{
    return 0;
}
