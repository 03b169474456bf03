// The head of a PostScript file that shows Latin text: a face of the interpreter's in that
// encoding, called C, and `(text) x y L` to show it there.
#pragma once

#include <string>

namespace tarn::bench {

inline std::string postScriptHead(const std::string& face) {
    return "%!PS-Adobe-3.0\n/" + face +
           " findfont dup length dict begin\n"
           "{1 index /FID ne {def} {pop pop} ifelse} forall\n"
           "/Encoding ISOLatin1Encoding def currentdict end /C exch definefont pop\n"
           "/L {moveto show} bind def\n";
}

}  // namespace tarn::bench
