#include "support/SamplePerson.h"

Profile SamplePerson(const QString& name) {
    Profile person;
    person.userName = name;
    person.age = 40;
    person.SetHeight(70);
    person.currentWeight = 200;
    person.desiredWeight = 170;
    person.gender = 1;
    person.activityLevel = 2;
    return person;
}
