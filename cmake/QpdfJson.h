// What clang 14 gets of qpdf 11.3's JSON, whose header it cannot take: the name, which is all that
// its other headers need.
#pragma once

class JSON;
