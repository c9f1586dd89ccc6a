#pragma once

#include "ReportSheet.h"

struct Oturum;

/// Finds the picture files of a company's models; the session must outlive it.
PictureFinder reportPictures(Oturum &oturum);
