// tst_headers: the work is done by the compiler. Every public header compiled on
// its own without Qt (one generated source per header), the signatures of the
// exports and the layout of the records (signatures.cpp, records.cpp). Linking
// them all into one program also shows that the headers define nothing twice.
int main()
{
    return 0;
}
