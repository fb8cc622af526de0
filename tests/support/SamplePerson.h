#pragma once

#include "model/Profile.h"

/// What a person enters who keeps every rule of a profile.
Profile SamplePerson(const QString& name);
