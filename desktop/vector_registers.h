// The vector registers of the processor, which painting leaves in a state that slows all else down.
#pragma once

namespace tarnwick {

// To be called where control comes back from Qt. Some of its painting code, in 6.4 at least, leaves
// the upper halves of the AVX registers in use; until they are cleared, plain floating-point code
// such as ours, which keeps them, takes up to ten times as long on many processors.
void ClearVectorRegisters();

}  // namespace tarnwick
