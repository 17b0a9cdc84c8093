#include "bench/world.h"

#include <cstdio>
#include <cstdlib>

#include "startup/world_load.h"

const AppFolder& BenchHome() {
  static const AppFolder home(DefaultAppFolder(std::nullopt));
  return home;
}

const NavDatabase& BenchWorld() {
  static const WorldLoad world = [] {
    WorldLoad loaded = LoadWorld(BenchHome());
    if (!loaded.error.empty()) {
      std::fprintf(stderr, "velmora-bench: %s\n", loaded.error.c_str());
      std::exit(1);
    }
    return loaded;
  }();
  return world.database;
}
