#include "views/pdfwriterstate.h"

#include "utils/pdftablewriter.h"

PdfWriterState::PdfWriterState() = default;

PdfWriterState::~PdfWriterState() = default; // each writer finishes its file

bool PdfWriterState::open(unsigned id, const QString& path)
{
    close(id);
    auto writer = std::make_unique<PdfTableWriter>();
    if (!writer->open(path))
        return false;
    m_writers[id] = std::move(writer);
    return true;
}

PdfTableWriter* PdfWriterState::writer(unsigned id) const
{
    auto it = m_writers.find(id);
    return it != m_writers.end() ? it->second.get() : nullptr;
}

bool PdfWriterState::close(unsigned id)
{
    auto it = m_writers.find(id);
    if (it == m_writers.end())
        return false;
    it->second->close();
    m_writers.erase(it);
    return true;
}
