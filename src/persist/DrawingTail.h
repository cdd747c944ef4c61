#pragma once

class CZvDispFileParam;

namespace zv {

class DrawingReader;

/// Reads the end of a record: post, user set and culture into the parameter block where they stand,
/// and on to the next line. `cultureWidth` is how many characters the culture's field takes with
/// what follows it.
void ReadTail(DrawingReader& in, CZvDispFileParam& file, int cultureWidth);

} // namespace zv
