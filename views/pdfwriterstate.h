#ifndef PDFWRITERSTATE_H
#define PDFWRITERSTATE_H

#include <QString>

#include <map>
#include <memory>

class PdfTableWriter;

/**
 * The PDF writers the logic layer has open, by its own writer id. Opening an
 * id again finishes the file it had open first. Writers still open when the
 * panel quits are finished then.
 */
class PdfWriterState {
public:
    PdfWriterState();
    ~PdfWriterState();

    /** Opens writer \a id on \a path; false when the file cannot be written (the id is then free). */
    bool open(unsigned id, const QString& path);
    /** The open writer \a id, or null. */
    PdfTableWriter* writer(unsigned id) const;
    /** Finishes and forgets writer \a id; false when it is not open. */
    bool close(unsigned id);

private:
    std::map<unsigned, std::unique_ptr<PdfTableWriter>> m_writers;
};

#endif // PDFWRITERSTATE_H
