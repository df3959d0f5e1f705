#pragma once
// Sizes the screens' designs give in twips: 15 to a pixel at 96 dots an inch.

namespace tessera {

inline constexpr int TwipsPerPixel = 15;

} // namespace tessera
