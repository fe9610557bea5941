#ifndef TESTS_ROBOT_ROBOTSCENES_H
#define TESTS_ROBOT_ROBOTSCENES_H

class CRobot;

/// Sets scenes (the workbench, a dialog of a sender of any type, the chart) until the robot has done
/// all its actions.
void PlayScenes(CRobot& robot);

#endif // TESTS_ROBOT_ROBOTSCENES_H
