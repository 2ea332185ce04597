// For the program's sources as well: a script takes the macros alone.
#define FORM_BASE 400
extern long int counter;
