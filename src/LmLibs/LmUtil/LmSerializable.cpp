#include "LmLibs/LmUtil/LmSerializable.h"

LmSerializable::~LmSerializable() = default;
