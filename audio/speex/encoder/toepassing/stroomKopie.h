// Copying generated text from memory to disk.
#pragma once

class wxFile;
class wxMemoryOutputStream;

// Writes the whole text behind what `doel`, an open file, holds. What fails is logged by the
// toolkit, and the text stays in memory.
void kopieer(wxMemoryOutputStream const& bron, wxFile& doel);
