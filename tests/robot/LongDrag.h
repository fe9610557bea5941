#ifndef TESTS_ROBOT_LONGDRAG_H
#define TESTS_ROBOT_LONGDRAG_H

/// Drags the points of a chart with the mouse, move after move with a repaint for each, prints what that took
/// and says on standard error what went wrong: a point that does not follow, moves that become slower,
/// memory that grows.
/// @param nMoves how many moves of the mouse; time and memory are judged from 100,000 on
/// @param nSeed  chooses the points and the ways they take
/// @return whether nothing went wrong
bool DragForLong(int nMoves, unsigned int nSeed);

#endif // TESTS_ROBOT_LONGDRAG_H
