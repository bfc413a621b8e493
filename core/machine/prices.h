#pragma once

/// What help and a load add to the time of a game, in whole minutes of 60 seconds. The sentences
/// that tell the player are made from these.
inline constexpr int kMinutosSocorro = 2;
inline constexpr int kMinutosCarga = 2;
